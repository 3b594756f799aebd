#pragma once

namespace varnhold {

/// Which rows are shown. `first` to `last` are the visible indexes; `last` is first - 1 when none is.
class MorphListScroll
{
public:
    [[nodiscard]] int first() const { return m_first; }
    [[nodiscard]] int last() const { return m_last; }
    [[nodiscard]] int rows() const { return m_rows; } ///< rows that fit
    [[nodiscard]] int count() const { return m_count; }
    [[nodiscard]] bool scrolls() const { return m_count > m_rows; } ///< there is a scroll bar

    // Each returns whether the visible rows are others than before.
    bool setExtent(int count, int rows); ///< the first row is corrected when the list ends before
    bool setFirst(int first);            ///< clamped to the first and the last page
    bool step(int rows) { return setFirst(m_first + rows); }
    bool page(int pages) { return step(pages * (m_rows > 1 ? m_rows : 1)); }
    bool showRow(int index); ///< scrolls no further than needed

private:
    int m_first = 0;
    int m_last = -1;
    int m_rows = 0;
    int m_count = 0;
};

} // namespace varnhold
