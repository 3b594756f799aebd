#include "controls/XP_ProgressBar/ProgressMetrics.h"

#include "controls/DesignValues.h"

namespace varnhold {

namespace {

namespace look = design::progresslook;

constexpr int blockInset = 3; // track before the first block
constexpr int searchBlockWidth = 10;
constexpr int searchRun = 45; // how far before the bar's end the blocks set out

// A block and the space after it make one step. The continuous bar has blocks of no width, so it moves by
// two pixels; the searching one by four.
int blockWidthOf(int scrolling)
{
    switch (scrolling) {
    case look::segmented:
        return 6;
    case look::searching:
        return 2;
    default:
        return 0;
    }
}

} // namespace

ProgressMetrics::ProgressMetrics(const ProgressState& state, QSize client)
    : m_length(qMax(0, state.vertical ? client.height() : client.width())),
      m_breadth(qMax(0, state.vertical ? client.width() : client.height())),
      m_percent(qBound(0, state.percent(), 100)),
      m_vertical(state.vertical)
{
    const auto part = [this](int whole, int of) { return static_cast<int>(qint64{m_percent} * whole / of); };
    switch (state.scrolling) {
    case look::pastel:
        m_start = 1;
        m_end = part(m_length, 100);
        break;
    case look::office:
        m_start = 3;
        m_end = part(m_length, 101);
        break;
    case look::brush:
    case look::picture:
        m_start = 2;
        m_end = part(m_length, 101);
        break;
    case look::sunken:
    case look::media:
        m_start = 2;
        m_end = m_start + part(m_length - 4, 100);
        break;
    case look::metal:
        m_start = 2;
        m_end = m_start + part(m_length - 5, 100);
        break;
    default:
        CalcBarSize(state);
    }
}

void ProgressMetrics::CalcBarSize(const ProgressState& state)
{
    m_blockWidth = blockWidthOf(state.scrolling);
    m_start = blockInset;
    // Meant: the bar is full at 98 already. What goes past the track is cut off before the last whole
    // block is counted; only the blocks of the searching look run out of the track.
    const double filled = m_percent / 98.0;
    m_end = m_start + static_cast<int>((m_length - m_start) * filled);
    if (state.scrolling != look::searching)
        m_end = qMin(m_end, m_length - blockInset);
    m_end -= (m_end - m_start) % (m_blockWidth + blockSpace);
    m_end = qMax(m_end, m_start);
}

BarRect ProgressMetrics::toClient(const BarRect& rect) const
{
    if (!m_vertical)
        return rect;
    return {rect.top, m_length - rect.right, rect.bottom, m_length - rect.left};
}

BarRect ProgressMetrics::barInClient() const
{
    return toClient({qMin(m_start, m_length), 0, qBound(0, m_end, m_length), m_breadth});
}

std::vector<BarRect> ProgressMetrics::divisions() const
{
    const int step = m_blockWidth + blockSpace;
    std::vector<BarRect> spaces;
    for (int at = m_start; at < m_end; at += step) {
        // From the top, the space lies under its block: before it, as seen from the bottom.
        const int left = m_vertical ? at : at + m_blockWidth;
        spaces.push_back({left, 0, left + blockSpace, m_breadth});
    }
    return spaces;
}

BarRect ProgressMetrics::searchBlock(int index) const
{
    const double lag = (1.0 - m_percent / 100.0) * searchRun;
    const int left = m_end + index * (m_blockWidth + searchBlockWidth) - qRound(lag);
    return {left, 3, left + searchBlockWidth, qMax(3 + 9, m_breadth - 2)};
}

BarRect CalculateAlphaTextRect(QSize client, QSize text)
{
    const int left = client.width() / 2 - text.width() / 2;
    const int top = client.height() / 2 - text.height() / 2;
    return {left, top, left + text.width(), top + text.height()};
}

} // namespace varnhold
