#pragma once

#include "controls/MorphListBox/MorphListColumn.h"

#include <QStringList>

#include <utility>
#include <vector>

namespace varnhold {

/// The items of a list as parallel arrays. Indexes given to it are in range; the caller sees to that.
///
/// Texts that are to be sorted in wait in a queue until the list is next looked at. Then they are sorted
/// and merged in at once, which leaves the same list as one insertion after the other and keeps a sorted
/// bulk fill from moving the whole array for each text. Each function but count() and addSorted() wants
/// settle() called before.
class MorphListItems
{
public:
    [[nodiscard]] int count() const { return int(m_texts.size() + m_waiting.size()); }
    [[nodiscard]] bool settled() const { return m_waiting.isEmpty(); }

    void append(QString&& text) // inline: a bulk fill is made of nothing else
    {
        m_newIndex = int(m_texts.size());
        m_order = m_newIndex == 0 ? Order::Ascending : Order::Unknown;
        m_texts.append(std::move(text));
    }
    void insert(int index, QString&& text);
    void addSorted(QString&& text);
    /// Merges the queue in. For each new text, in ascending order, the old index that it went in front of.
    std::vector<int> settle();
    void remove(int index);
    void clear();

    [[nodiscard]] const QString& text(int index) const { return m_texts.at(index); }
    void setText(int index, const QString& text);

    MorphListColumn<qint32> data{0};
    MorphListColumn<qint32> images{-1};
    MorphListColumn<quint8> selected{0};

    /// Item added last, -1 when none; follows its slot only until the next change, as told.
    [[nodiscard]] int newIndex() const { return m_newIndex; }
    void setNewIndex(int index) { m_newIndex = index; }

    void setNumeric(bool numeric);
    [[nodiscard]] bool numeric() const { return m_numeric; }
    void sortDescending(); ///< equal items keep their order
    void reverse();

    /// First item that equals the text as a whole, -1 when none; binary search when `sorted` is set and the
    /// items are in order, else a scan.
    [[nodiscard]] int find(const QString& text, bool matchCase, bool sorted);

private:
    enum class Order { Unknown, Ascending, Descending, Mixed };

    [[nodiscard]] int compare(const QString& left, const QString& right) const;
    [[nodiscard]] int slotFor(const QString& text) const;
    [[nodiscard]] bool inOrder(int left, int right) const;
    void checkOrder();
    void keepOrderAt(int index);
    void openSlot(int index, QString&& text);

    QStringList m_texts;
    QStringList m_waiting;
    Order m_order = Order::Ascending;
    bool m_numeric = false;
    int m_newIndex = -1;
};

} // namespace varnhold
