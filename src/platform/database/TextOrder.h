#pragma once

#include <QtGlobal>

#include <string>
#include <vector>

namespace varnhold {

/// Sort keys of many rows, in one piece of memory; a row's number counts from 0 in the order of adding.
class TextOrder
{
public:
    /// The next row's key goes to the end of this text; then finishRow() or finishNullRow().
    std::string& keys() { return m_keys; }
    void finishRow() { m_ends.push_back(m_keys.size()); }
    void finishNullRow();

    /// Row numbers in ascending order by bytes, NULL first; rows with the same key keep their order, also
    /// when descending.
    [[nodiscard]] std::vector<quint32> sorted(bool descending) const;

private:
    [[nodiscard]] bool isSorted() const;

    std::string m_keys;
    std::vector<std::size_t> m_ends{0};
    std::vector<quint32> m_nulls;
};

} // namespace varnhold
