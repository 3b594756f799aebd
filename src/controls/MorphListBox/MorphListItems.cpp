#include "controls/MorphListBox/MorphListItems.h"

#include "controls/MorphListBox/MorphListCompare.h"

#include <utility>

namespace varnhold {

void MorphListItems::insert(int index, QString&& text)
{
    openSlot(index, std::move(text));
    keepOrderAt(index);
}

void MorphListItems::addSorted(QString&& text)
{
    if (count() < 2)
        m_order = Order::Ascending;
    else if (m_order == Order::Unknown)
        checkOrder();
    // Without an order there is no queueing: where a binary search ends depends on each text before.
    if (m_order == Order::Mixed)
        openSlot(slotFor(text), std::move(text));
    else
        m_waiting.append(std::move(text));
}

std::vector<int> MorphListItems::settle()
{
    if (m_waiting.isEmpty())
        return {};
    const std::vector<int> order = sortedOrder(m_waiting, m_numeric, m_order == Order::Descending);
    std::vector<int> slots;
    slots.reserve(order.size());
    for (const int waiting : order)
        slots.push_back(slotFor(m_waiting.at(waiting)));

    const int added = int(m_waiting.size());
    const int before = int(m_texts.size());
    int source = before;
    m_texts.resize(before + added);
    int target = int(m_texts.size());
    for (int i = added - 1; i >= 0; --i) {
        const int slot = slots[size_t(i)];
        if (target != source)
            std::move_backward(m_texts.begin() + slot, m_texts.begin() + source, m_texts.begin() + target);
        target -= source - slot + 1;
        source = slot;
        m_texts[target] = std::move(m_waiting[order[size_t(i)]]);
        if (order[size_t(i)] == added - 1)
            m_newIndex = target;
    }
    data.merge(slots, before);
    images.merge(slots, before);
    selected.merge(slots, before);
    m_waiting = {};
    return slots;
}

void MorphListItems::remove(int index)
{
    m_texts.removeAt(index);
    data.remove(index);
    images.remove(index);
    selected.remove(index);
    if (m_texts.isEmpty())
        m_order = Order::Ascending;
    else if (m_order == Order::Mixed)
        m_order = Order::Unknown;
}

void MorphListItems::clear()
{
    m_texts = {};
    m_waiting = {};
    data.clear();
    images.clear();
    selected.clear();
    m_order = Order::Ascending;
    m_newIndex = -1;
}

void MorphListItems::setText(int index, const QString& text)
{
    m_texts[index] = text;
    keepOrderAt(index);
}

void MorphListItems::setNumeric(bool numeric)
{
    if (std::exchange(m_numeric, numeric) != numeric && m_texts.size() > 1)
        m_order = Order::Unknown;
}

void MorphListItems::sortDescending()
{
    const std::vector<int> order = sortedOrder(m_texts, m_numeric, true);
    QStringList sorted;
    sorted.reserve(m_texts.size());
    for (const int from : order)
        sorted.append(std::move(m_texts[from]));
    m_texts.swap(sorted);
    data.reorder(order);
    images.reorder(order);
    selected.reorder(order);
    m_order = Order::Descending;
}

void MorphListItems::reverse()
{
    for (qsizetype front = 0, back = m_texts.size() - 1; front < back; ++front, --back)
        m_texts[front].swap(m_texts[back]);
    data.reverse(int(m_texts.size()));
    images.reverse(int(m_texts.size()));
    selected.reverse(int(m_texts.size()));
    if (m_order == Order::Ascending && m_texts.size() > 1)
        m_order = Order::Descending;
    else if (m_order == Order::Descending)
        m_order = Order::Ascending;
}

int MorphListItems::find(const QString& text, bool matchCase, bool sorted)
{
    const auto equals = [&](const QString& item) {
        return matchCase ? item == text : compareLowered(item, text) == 0;
    };
    const int count = int(m_texts.size());
    if (sorted && m_order == Order::Unknown)
        checkOrder();
    if (!sorted || m_order == Order::Mixed) {
        for (int i = 0; i < count; ++i) {
            if (equals(m_texts.at(i)))
                return i;
        }
        return -1;
    }
    // The first item that is not in front of the text; its equals in another case, and the texts of the
    // same number, follow it in a row.
    const auto rank = [&](const QString& item) {
        const int order = m_numeric ? compareItems(item, text, true) : compareLowered(item, text);
        return m_order == Order::Descending ? -order : order;
    };
    const auto first = std::partition_point(m_texts.cbegin(), m_texts.cend(),
                                            [&](const QString& item) { return rank(item) < 0; });
    for (auto item = first; item != m_texts.cend() && rank(*item) == 0; ++item) {
        if (equals(*item))
            return int(item - m_texts.cbegin());
    }
    return -1;
}

int MorphListItems::compare(const QString& left, const QString& right) const
{
    const int order = compareItems(left, right, m_numeric);
    return m_order == Order::Descending ? -order : order;
}

int MorphListItems::slotFor(const QString& text) const
{
    // Behind its equals, so that they stand in the order in which they came.
    return int(std::upper_bound(
                   m_texts.cbegin(), m_texts.cend(), text,
                   [this](const QString& left, const QString& right) { return compare(left, right) < 0; }) -
               m_texts.cbegin());
}

bool MorphListItems::inOrder(int left, int right) const
{
    return left < 0 || right >= int(m_texts.size()) || compare(m_texts.at(left), m_texts.at(right)) <= 0;
}

void MorphListItems::checkOrder()
{
    const auto holds = [this](Order order) {
        m_order = order;
        for (int i = 1; i < int(m_texts.size()); ++i) {
            if (!inOrder(i - 1, i))
                return false;
        }
        return true;
    };
    if (!holds(Order::Ascending) && !holds(Order::Descending))
        m_order = Order::Mixed;
}

void MorphListItems::keepOrderAt(int index)
{
    const bool ordered = m_order == Order::Ascending || m_order == Order::Descending;
    if (!ordered || !inOrder(index - 1, index) || !inOrder(index, index + 1))
        m_order = Order::Unknown;
}

void MorphListItems::openSlot(int index, QString&& text)
{
    m_texts.insert(index, std::move(text));
    data.insert(index);
    images.insert(index);
    selected.insert(index);
    m_newIndex = index;
}

} // namespace varnhold
