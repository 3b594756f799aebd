#pragma once

#include <QString>

#include <algorithm>
#include <optional>
#include <vector>

namespace varnhold::test {

/// What a list holds, kept in the plainest way: whole records, linear searches, one insertion after the
/// other. The oracle of the random sequences.
struct PlainList
{
    struct Item
    {
        QString text;
        int data = 0;
        int image = -1;
        bool flag = false;
        int id = 0;
    };

    std::vector<Item> items;
    bool numeric = false;
    bool multi = false;
    int currentId = 0; ///< 0: none
    int newIndex = -1;
    int first = 0;
    int rows = 10;
    int nextId = 1;

    [[nodiscard]] int count() const { return int(items.size()); }
    [[nodiscard]] bool before(const QString& a, const QString& b) const
    {
        if (numeric)
            return a.toInt() < b.toInt();
        return a.toLower() != b.toLower() ? a.toLower() < b.toLower() : a < b;
    }
    [[nodiscard]] bool ordered(bool descending) const
    {
        for (size_t i = 1; i < items.size(); ++i) {
            if (descending ? before(items[i - 1].text, items[i].text)
                           : before(items[i].text, items[i - 1].text))
                return false;
        }
        return true;
    }
    /// Where a sorted list takes the text; nothing when the list is in no order.
    [[nodiscard]] std::optional<int> slotFor(const QString& text) const
    {
        const bool up = ordered(false);
        if (!up && !ordered(true))
            return {};
        int slot = 0;
        while (slot < count() &&
               !(up ? before(text, items[size_t(slot)].text) : before(items[size_t(slot)].text, text)))
            ++slot;
        return slot;
    }
    void insert(int index, const QString& text)
    {
        items.insert(items.begin() + index, {text, 0, -1, false, nextId++});
        newIndex = index;
    }
    void remove(int index)
    {
        if (items[size_t(index)].id == currentId)
            currentId = 0;
        items.erase(items.begin() + index);
        scrollTo(first);
    }
    void sort(bool descending)
    {
        std::stable_sort(items.begin(), items.end(),
                         [this](const Item& a, const Item& b) { return before(b.text, a.text); });
        if (!descending)
            std::reverse(items.begin(), items.end());
        for (Item& item : items)
            item.flag = false;
        currentId = multi || items.empty() ? 0 : items.front().id;
        first = 0;
    }
    [[nodiscard]] int find(const QString& text, bool matchCase) const
    {
        for (int i = 0; i < count(); ++i) {
            const QString& item = items[size_t(i)].text;
            if (matchCase ? item == text : item.toLower() == text.toLower())
                return i;
        }
        return -1;
    }
    [[nodiscard]] int current() const
    {
        for (int i = 0; i < count(); ++i) {
            if (items[size_t(i)].id == currentId)
                return i;
        }
        return -1;
    }
    [[nodiscard]] bool selected(int index) const
    {
        return multi ? items[size_t(index)].flag : index == current();
    }
    void scrollTo(int row) { first = std::clamp(row, 0, std::max(0, count() - rows)); }
    void show(int row)
    {
        if (row >= 0 && row < first)
            scrollTo(row);
        else if (row >= first + rows)
            scrollTo(row - rows + 1);
    }
};

} // namespace varnhold::test
