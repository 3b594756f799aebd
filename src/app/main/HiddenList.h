#pragma once

#include <QString>
#include <QStringList>

namespace varnhold {

/// List1: the titles that run beside the ids of the game list, one a row. It is a store of its own; nothing
/// but the routines that fill both keeps it in step with the ids.
class HiddenList
{
public:
    void addItem(const QString& text) { m_rows.append(text); }
    /// The selection ends where it was on that row, and follows its own. Without effect for a row that is not
    /// there.
    void removeRow(int index)
    {
        if (index < 0 || index >= count())
            return;
        m_rows.removeAt(index);
        if (m_index == index)
            m_index = -1;
        else if (m_index > index)
            --m_index;
    }
    void clear()
    {
        m_rows.clear();
        m_index = -1;
    }
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    /// Empty for a row that is not there.
    [[nodiscard]] QString row(int index) const { return m_rows.value(index); }
    /// Without effect for a row that is not there.
    void setRow(int index, const QString& text)
    {
        if (index >= 0 && index < count())
            m_rows[index] = text;
    }

    [[nodiscard]] int listIndex() const { return m_index; }
    /// A row that is not there leaves the selection as it is.
    void setListIndex(int index)
    {
        if (index >= -1 && index < count())
            m_index = index;
    }
    [[nodiscard]] QString text() const { return row(m_index); }

private:
    QStringList m_rows;
    int m_index = -1;
};

} // namespace varnhold
