#pragma once

#include <algorithm>
#include <span>
#include <vector>

namespace varnhold {

/// One of the arrays that run parallel to the texts. It takes no memory until a value other than the
/// initial one is written, so a plain list of texts costs no more than its texts.
template <typename T> class MorphListColumn
{
public:
    explicit MorphListColumn(T initial) : m_initial(initial) {}

    [[nodiscard]] T at(int index) const { return m_values.empty() ? m_initial : m_values[size_t(index)]; }
    void set(int index, T value, int count)
    {
        if (m_values.empty()) {
            if (value == m_initial)
                return;
            m_values.assign(size_t(count), m_initial);
        }
        m_values[size_t(index)] = value;
    }
    void fill(T value, int from, int to, int count) ///< rows from to to, both included
    {
        if (m_values.empty() && value != m_initial)
            m_values.assign(size_t(count), m_initial);
        if (!m_values.empty())
            std::fill(m_values.begin() + from, m_values.begin() + to + 1, value);
    }
    void insert(int index)
    {
        if (!m_values.empty())
            m_values.insert(m_values.begin() + index, m_initial);
    }
    void remove(int index)
    {
        if (!m_values.empty())
            m_values.erase(m_values.begin() + index);
    }
    void clear() { std::vector<T>().swap(m_values); }
    void reverse() { std::reverse(m_values.begin(), m_values.end()); }
    [[nodiscard]] int countOf(T value, int count) const
    {
        if (m_values.empty())
            return value == m_initial ? count : 0;
        return int(std::count(m_values.begin(), m_values.end(), value));
    }
    /// The value at order[i] comes to i.
    void reorder(std::span<const int> order)
    {
        if (m_values.empty())
            return;
        std::vector<T> sorted;
        sorted.reserve(order.size());
        for (const int from : order)
            sorted.push_back(m_values[size_t(from)]);
        m_values.swap(sorted);
    }
    /// Opens a slot in front of each of the given old indexes, which ascend.
    void merge(std::span<const int> slots)
    {
        if (m_values.empty())
            return;
        size_t source = m_values.size();
        m_values.resize(source + slots.size());
        size_t target = m_values.size();
        for (size_t i = slots.size(); i-- > 0;) {
            const size_t block = source - size_t(slots[i]);
            std::move_backward(m_values.begin() + slots[i], m_values.begin() + std::ptrdiff_t(source),
                               m_values.begin() + std::ptrdiff_t(target));
            source -= block;
            target -= block + 1;
            m_values[target] = m_initial;
        }
    }

private:
    T m_initial;
    std::vector<T> m_values;
};

} // namespace varnhold
