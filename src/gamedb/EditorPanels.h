#pragma once

#include <array>

namespace varnhold {

/// The four tool panels of the entry editor, stacked: which are open and where each stands, in twips. All are
/// closed at first.
class EditorPanels
{
public:
    static constexpr int count = 4; ///< picFrame(0) to (3): font, alignment, indent, open and save

    [[nodiscard]] bool isOpen(int panel) const;
    [[nodiscard]] int top(int panel) const;
    [[nodiscard]] int height(int panel) const { return m_heights.at(static_cast<std::size_t>(panel)); }
    /// Opens the panel, which closes those that it has no room beside, or closes it.
    void cmd_Collapse_Click(int panel);

private:
    static constexpr int closed = 210;

    std::array<int, count> m_heights{closed, closed, closed, closed};
};

} // namespace varnhold
