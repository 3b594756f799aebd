#include "platform/database/TextOrder.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace varnhold {

namespace {

/// A row with eight bytes of its key as a number that compares as they do, so that most comparisons touch no
/// other memory.
struct Entry
{
    quint64 piece;
    quint32 row;
};

/// Entries that agree in the first `depth` bytes.
struct Range
{
    std::size_t begin;
    std::size_t end;
    std::size_t depth;
};

/// Below this many entries whole keys are compared at once.
constexpr std::size_t smallRange = 12;

class Sorter
{
public:
    Sorter(const std::string& keys, const std::vector<std::size_t>& ends) : m_keys(keys), m_ends(ends) {}

    void sort(std::vector<Entry>& entries)
    {
        // A stack of its own: a thousand equal texts of 100,000 bytes must not nest calls.
        std::vector<Range> ranges{{0, entries.size(), 0}};
        while (!ranges.empty()) {
            const Range range = ranges.back();
            ranges.pop_back();
            if (range.end - range.begin < smallRange)
                sortWhole(entries, range);
            else
                sortPieces(entries, range, ranges);
        }
    }

private:
    [[nodiscard]] std::string_view rest(quint32 row, std::size_t depth) const
    {
        const std::size_t start = m_ends[row] + depth;
        return start < m_ends[row + 1] ? std::string_view(m_keys).substr(start, m_ends[row + 1] - start)
                                       : std::string_view();
    }

    void sortWhole(std::vector<Entry>& entries, const Range& range) const
    {
        std::sort(at(entries, range.begin), at(entries, range.end), [&](const Entry& a, const Entry& b) {
            const int order = rest(a.row, range.depth).compare(rest(b.row, range.depth));
            return order != 0 ? order < 0 : a.row < b.row;
        });
    }

    void sortPieces(std::vector<Entry>& entries, const Range& range, std::vector<Range>& further) const
    {
        const std::size_t next = range.depth + sizeof(quint64);
        for (std::size_t i = range.begin; i < range.end; ++i) {
            const std::string_view key = rest(entries[i].row, range.depth);
            unsigned char bytes[sizeof(quint64)] = {};
            std::memcpy(bytes, key.data(), std::min(key.size(), sizeof bytes));
            entries[i].piece = qFromBigEndian<quint64>(bytes);
        }
        std::sort(at(entries, range.begin), at(entries, range.end),
                  [](const Entry& a, const Entry& b) { return a.piece < b.piece; });
        for (std::size_t begin = range.begin; begin < range.end;) {
            std::size_t end = begin + 1;
            while (end < range.end && entries[end].piece == entries[begin].piece)
                ++end;
            if (end - begin > 1)
                splitEqual(entries, {begin, end, next}, further);
            begin = end;
        }
    }

    /// Among entries with the same piece those whose key ends in it come first, the shorter before the
    /// longer: a NUL in a text is told from the padding this way.
    void splitEqual(std::vector<Entry>& entries, const Range& range, std::vector<Range>& further) const
    {
        const auto length = [&](const Entry& entry) { return m_ends[entry.row + 1] - m_ends[entry.row]; };
        const auto ended = std::partition(at(entries, range.begin), at(entries, range.end),
                                          [&](const Entry& entry) { return length(entry) <= range.depth; });
        std::sort(at(entries, range.begin), ended, [&](const Entry& a, const Entry& b) {
            return length(a) != length(b) ? length(a) < length(b) : a.row < b.row;
        });
        const auto left = static_cast<std::size_t>(ended - entries.begin());
        if (range.end - left > 1)
            further.push_back({left, range.end, range.depth});
    }

    static std::vector<Entry>::iterator at(std::vector<Entry>& entries, std::size_t index)
    {
        return entries.begin() + static_cast<std::ptrdiff_t>(index);
    }

    const std::string& m_keys;
    const std::vector<std::size_t>& m_ends;
};

} // namespace

void TextOrder::reserve(std::size_t rows)
{
    m_ends.reserve(rows + 1);
}

void TextOrder::finishNullRow()
{
    m_nulls.push_back(static_cast<quint32>(m_ends.size() - 1));
    finishRow();
}

std::vector<quint32> TextOrder::sorted(bool descending) const
{
    const std::size_t count = m_ends.size() - 1;
    std::vector<Entry> entries;
    entries.reserve(count - m_nulls.size());
    for (quint32 row = 0, null = 0; row < count; ++row) {
        if (null < m_nulls.size() && m_nulls[null] == row)
            ++null;
        else
            entries.push_back({0, row});
    }
    Sorter(m_keys, m_ends).sort(entries);

    std::vector<quint32> rows = m_nulls;
    rows.reserve(count);
    for (const Entry& entry : entries)
        rows.push_back(entry.row);
    if (!descending)
        return rows;
    std::reverse(rows.begin(), rows.end());
    // Reversed, rows with the same key stand in the wrong order among themselves.
    const auto key = [&](quint32 row) {
        return std::string_view(m_keys).substr(m_ends[row], m_ends[row + 1] - m_ends[row]);
    };
    for (std::size_t begin = 0; begin < entries.size();) {
        std::size_t end = begin + 1;
        while (end < entries.size() && rows[end - 1] > rows[end] && key(rows[begin]) == key(rows[end]))
            ++end;
        std::reverse(rows.begin() + static_cast<std::ptrdiff_t>(begin),
                     rows.begin() + static_cast<std::ptrdiff_t>(end));
        begin = end;
    }
    std::reverse(rows.begin() + static_cast<std::ptrdiff_t>(entries.size()), rows.end());
    return rows;
}

} // namespace varnhold
