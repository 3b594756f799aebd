#pragma once

#include <algorithm>
#include <span>
#include <vector>

namespace varnhold {

/// One of the arrays that run parallel to the texts. What lies past its end has the initial value, so a list
/// of mere texts takes no memory and no time for it. `count` is the number of items.
template <typename T> class MorphListColumn
{
public:
    explicit MorphListColumn(T initial) : m_initial(initial) {}

    [[nodiscard]] T at(int index) const
    {
        return size_t(index) < m_values.size() ? m_values[size_t(index)] : m_initial;
    }
    void set(int index, T value, int count)
    {
        if (size_t(index) >= m_values.size()) {
            if (value == m_initial)
                return;
            m_values.resize(size_t(count), m_initial);
        }
        m_values[size_t(index)] = value;
    }
    void fill(T value, int from, int to, int count) ///< rows from to to, both included
    {
        m_values.resize(size_t(count), m_initial);
        std::fill(m_values.begin() + from, m_values.begin() + to + 1, value);
    }
    void insert(int index)
    {
        if (size_t(index) < m_values.size())
            m_values.insert(m_values.begin() + index, m_initial);
    }
    void remove(int index)
    {
        if (size_t(index) < m_values.size())
            m_values.erase(m_values.begin() + index);
    }
    void clear() { std::vector<T>().swap(m_values); }
    void reverse(int count)
    {
        if (m_values.empty())
            return;
        m_values.resize(size_t(count), m_initial);
        std::reverse(m_values.begin(), m_values.end());
    }
    [[nodiscard]] int countOf(T value, int count) const
    {
        const int past = value == m_initial ? count - int(m_values.size()) : 0;
        return past + int(std::count(m_values.begin(), m_values.end(), value));
    }
    /// The value at order[i] comes to i.
    void reorder(std::span<const int> order)
    {
        if (m_values.empty())
            return;
        std::vector<T> sorted;
        sorted.reserve(order.size());
        for (const int from : order)
            sorted.push_back(at(from));
        m_values.swap(sorted);
    }
    /// Opens a slot in front of each of the given old indexes, which ascend; `count` was the old one.
    void merge(std::span<const int> slots, int count)
    {
        if (m_values.empty())
            return;
        m_values.resize(size_t(count), m_initial);
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
