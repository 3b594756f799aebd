#include "platform/database/TextOrder.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
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
/// From this many on entries are distributed rather than compared.
constexpr std::size_t largeRange = 1'024;
/// Keys to fetch ahead: rows in order lie all over the memory.
constexpr std::size_t ahead = 16;

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
        const std::size_t end = m_ends[row + 1];
        const std::size_t start = std::min(m_ends[row] + depth, end);
        return {m_keys.data() + start, end - start};
    }

    void sortWhole(std::vector<Entry>& entries, const Range& range) const
    {
        std::sort(at(entries, range.begin), at(entries, range.end), [&](const Entry& a, const Entry& b) {
            const int order = rest(a.row, range.depth).compare(rest(b.row, range.depth));
            return order != 0 ? order < 0 : a.row < b.row;
        });
    }

    void sortPieces(std::vector<Entry>& entries, const Range& range, std::vector<Range>& further)
    {
        const std::size_t next = range.depth + sizeof(quint64);
        for (std::size_t i = range.begin; i < range.end; ++i) {
            if (i + 2 * ahead < range.end) {
                __builtin_prefetch(&m_ends[entries[i + 2 * ahead].row]);
                __builtin_prefetch(m_keys.data() + m_ends[entries[i + ahead].row] + range.depth);
            }
            const std::string_view key = rest(entries[i].row, range.depth);
            unsigned char bytes[sizeof(quint64)] = {};
            std::memcpy(bytes, key.data(), std::min(key.size(), sizeof bytes));
            entries[i].piece = qFromBigEndian<quint64>(bytes);
        }
        sortByPiece(entries, range);
        for (std::size_t begin = range.begin; begin < range.end;) {
            std::size_t end = begin + 1;
            while (end < range.end && entries[end].piece == entries[begin].piece)
                ++end;
            if (end - begin > 1)
                splitEqual(entries, {begin, end, next}, further);
            begin = end;
        }
    }

    void sortByPiece(std::vector<Entry>& entries, const Range& range)
    {
        if (range.end - range.begin < largeRange)
            std::sort(at(entries, range.begin), at(entries, range.end),
                      [](const Entry& a, const Entry& b) { return a.piece < b.piece; });
        else
            distributeByPiece(entries, range);
    }

    /// Byte by byte from the last, without comparing: many times faster than a comparison sort where the
    /// outcome of a comparison cannot be foreseen.
    void distributeByPiece(std::vector<Entry>& entries, const Range& range)
    {
        constexpr int bytes = sizeof(quint64);
        const std::size_t count = range.end - range.begin;
        const auto byteOf = [](const Entry& entry, int byte) { return (entry.piece >> (8 * byte)) & 0xff; };
        std::array<std::array<std::size_t, 256>, bytes> places{};
        for (std::size_t i = range.begin; i < range.end; ++i) {
            for (int byte = 0; byte < bytes; ++byte)
                ++places[byte][byteOf(entries[i], byte)];
        }
        m_spare.resize(count);
        Entry* from = entries.data() + range.begin;
        Entry* to = m_spare.data();
        for (int byte = 0; byte < bytes; ++byte) {
            auto& place = places[byte];
            if (place[byteOf(from[0], byte)] == count)
                continue; // the same byte everywhere
            std::exclusive_scan(place.begin(), place.end(), place.begin(), std::size_t{0});
            for (std::size_t i = 0; i < count; ++i)
                to[place[byteOf(from[i], byte)]++] = from[i];
            std::swap(from, to);
        }
        if (from == m_spare.data())
            std::copy_n(from, count, to);
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
    std::vector<Entry> m_spare;
};

} // namespace

void TextOrder::finishNullRow()
{
    m_nulls.push_back(static_cast<quint32>(m_ends.size() - 1));
    finishRow();
}

bool TextOrder::isSorted() const
{
    const auto key = [&](std::size_t row) {
        return std::string_view(m_keys).substr(m_ends[row], m_ends[row + 1] - m_ends[row]);
    };
    for (std::size_t row = 1; row + 1 < m_ends.size(); ++row) {
        if (key(row) < key(row - 1))
            return false;
    }
    return m_nulls.empty();
}

std::vector<quint32> TextOrder::sorted(bool descending) const
{
    const std::size_t count = m_ends.size() - 1;
    if (!descending && isSorted()) {
        // As it comes out of an index.
        std::vector<quint32> rows(count);
        std::iota(rows.begin(), rows.end(), 0);
        return rows;
    }
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
