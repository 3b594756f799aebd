#pragma once

#include "controls/SystemColors.h"

#include <array>
#include <functional>

class QPoint;
class QString;

namespace varnhold {

struct LinkRow;

/// What the window of report and links asks of the program around it.
class ReportHost
{
public:
    virtual ~ReportHost() = default;

    /// Looks the title up, selects it in the list of games where that has it, and shows its name. Pumps: the
    /// window and its rows may be gone afterwards.
    virtual void loadTitle(const QString& gameId, const QString& name) = 0;
    /// Asks first; `removeRow` is called when the link is gone from the database. Pumps.
    virtual void deleteLink(const LinkRow& link, const std::function<void()>& removeRow) = 0;
    virtual void bringMainToFront() = 0;
    virtual void openReportMenu(const QPoint& globalPosition) = 0; ///< mnuLstTxt
    virtual void openLinksMenu(const QPoint& globalPosition) = 0;  ///< mnulstView
    virtual void markTools(bool shown) = 0;                        ///< the check mark of mnuLTTools
    [[nodiscard]] virtual std::array<ColorValue, 2> balloonColors() const = 0; ///< fore and back
    /// The window has stored its place and left the screen; it is still on the stack.
    virtual void unloaded() = 0;
};

} // namespace varnhold
