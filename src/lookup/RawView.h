#pragma once

#include <QString>

namespace varnhold {

/// Where the hidden browser stands: behind the list at rest, or over it as the raw view.
class RawView
{
public:
    static constexpr int restLeft = 8600; ///< twips
    static constexpr int shownLeft = 0;

    [[nodiscard]] int left() const { return m_left; }
    [[nodiscard]] bool isShown() const { return m_left == shownLeft; }

    /// mnuRaw: moves the browser to the other place. Returns the new text of lblStatus; the width is that of
    /// picMain, in twips.
    QString toggle(int picMainWidth);

private:
    int m_left = restLeft;
};

} // namespace varnhold
