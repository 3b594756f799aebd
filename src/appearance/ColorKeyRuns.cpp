#include "appearance/ColorKeyRuns.h"

#include <algorithm>
#include <utility>

namespace varnhold {

namespace {

constexpr quint32 colorBits = 0x00FFFFFF;

/// Columns from first up to, not with, end.
struct Span
{
    int first;
    int end;
    bool operator==(const Span&) const = default;
};

/// Joins rows that keep the same columns.
class Bands
{
public:
    explicit Bands(int width) : m_width(width) {}

    /// `cut`: in order, not overlapping.
    void addRow(int y, const std::vector<Span>& cut)
    {
        m_kept.clear();
        int left = 0;
        for (const Span& run : cut) {
            const int first = std::min(run.first, m_width);
            if (first > left)
                m_kept.push_back({left, first});
            left = std::max(left, run.end);
        }
        if (left < m_width)
            m_kept.push_back({left, m_width});
        if (m_kept == m_band)
            return;
        close(y);
        m_band.swap(m_kept);
        m_top = y;
    }
    std::vector<QRect> finish(int height)
    {
        close(height);
        return std::move(m_rects);
    }

private:
    void close(int y)
    {
        for (const Span& span : m_band)
            m_rects.emplace_back(span.first, m_top, span.end - span.first, y - m_top);
    }

    int m_width;
    int m_top = 0;
    std::vector<Span> m_band;
    std::vector<Span> m_kept;
    std::vector<QRect> m_rects;
};

/// Finds the runs of the rows whose past-the-end step lies outside the picture: each closes on its own row.
void findRuns(const quint32* row, int width, quint32 color, std::vector<Span>& runs)
{
    for (int x = 0; x < width; ++x) {
        if ((row[x] & colorBits) != color)
            continue;
        const int first = x;
        while (++x < width && (row[x] & colorBits) == color) {
        }
        runs.push_back({first, x});
    }
}

} // namespace

std::vector<QRect> rectanglesLeft(const PixelView& picture, const QSize& window, quint32 color,
                                  bool horizontal)
{
    const int outer = horizontal ? window.height() : window.width();
    const int inner = horizontal ? window.width() : window.height();
    const QSize surface(std::min(picture.width, window.width()), std::min(picture.height, window.height()));
    Bands bands(inner);
    std::vector<Span> runs;
    bool open = false;
    Span run{0, 0};
    for (int y = 0; y < outer; ++y) {
        runs.clear();
        const quint32* row = y < surface.height() ? picture.pixels + y * picture.stride : nullptr;
        const int seen = std::min(inner + 1, surface.width());
        if (row != nullptr && !open && seen <= inner) {
            findRuns(row, seen, color, runs);
        } else {
            for (int x = 0; x <= inner; ++x) {
                const bool cut = row != nullptr && x < surface.width() && (row[x] & colorBits) == color;
                if (cut) {
                    run = open ? Span{run.first, x + 1} : Span{x, x + 1};
                    open = true;
                } else if (open) {
                    open = false;
                    // One that began in the row before may end left of its start: the corners are swapped.
                    const auto [first, end] = std::minmax(run.first, run.end);
                    if (first != end)
                        runs.push_back({first, end});
                }
            }
            std::sort(runs.begin(), runs.end(),
                      [](const Span& one, const Span& other) { return one.first < other.first; });
        }
        bands.addRow(y, runs);
    }
    return bands.finish(outer);
}

} // namespace varnhold
