#pragma once

#include <QAccessible>

#include <functional>
#include <optional>

class QWidget;

namespace varnhold {

/// What a control is to assistive tools, where the toolkit sees a bare widget.
struct AccessibleTraits
{
    /// A place between two ends that a tool can read and move.
    struct Value
    {
        std::function<int()> current;
        std::function<void(int)> move;
        std::function<int()> minimum;
        std::function<int()> maximum;
    };

    QAccessible::Role role = QAccessible::Client;
    std::function<void()> press = {}; ///< what a click does; null for a control that takes none
    std::optional<Value> value = {};
};

/// Tells assistive tools what the control is; to be said while it is built. Name and description are the
/// widget's own. A press is answered at once and done afterwards, since it may open a box, and the caller
/// would wait for its end.
void tellAssistiveTools(QWidget& control, AccessibleTraits traits);

} // namespace varnhold
