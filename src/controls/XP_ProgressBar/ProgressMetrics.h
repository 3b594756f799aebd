#pragma once

#include "controls/XP_ProgressBar/ProgressState.h"
#include "controls/XP_ProgressBar/ProgressSurface.h"

#include <vector>

namespace varnhold {

/// Where a bar of that state lies in a client of that size. Lengths run along the bar: from the left, or
/// from the bottom when vertical, so every look is told once; toClient() turns it.
class ProgressMetrics
{
public:
    static constexpr int blockSpace = 2; ///< between the blocks of the segmented look

    ProgressMetrics(const ProgressState& state, QSize client);

    [[nodiscard]] int length() const { return m_length; }   ///< client size along the bar
    [[nodiscard]] int breadth() const { return m_breadth; } ///< client size across it

    /// Start of the bar, and its end (`right`), which may lie before the start or past the client.
    [[nodiscard]] int barStart() const { return m_start; }
    [[nodiscard]] int barEnd() const { return m_end; }
    [[nodiscard]] int blockWidth() const { return m_blockWidth; }

    /// Bar coordinates (left and right along, top and bottom across) to the client's.
    [[nodiscard]] BarRect toClient(const BarRect& rect) const;
    /// The whole client.
    [[nodiscard]] BarRect client() const { return toClient({0, 0, m_length, m_breadth}); }
    /// The bar from edge to edge across, limited to the client, in client coordinates.
    [[nodiscard]] BarRect barInClient() const;

    /// The spaces between blocks, in bar coordinates over the bar's whole breadth. Each follows its block as
    /// counted from the bar's left, or from its top when vertical.
    [[nodiscard]] std::vector<BarRect> divisions() const;
    /// Blocks 0 to 2 of the searching look, in bar coordinates; they may lie outside.
    [[nodiscard]] BarRect searchBlock(int index) const;

private:
    void CalcBarSize(const ProgressState& state);

    int m_length;
    int m_breadth;
    int m_start = 0;
    int m_end = 0;
    int m_blockWidth = 0;
    int m_percent;
    bool m_vertical;
};

/// Text of that size in the middle of the client.
[[nodiscard]] BarRect CalculateAlphaTextRect(QSize client, QSize text);

} // namespace varnhold
