#include "controls/MorphListBox/MorphListModel.h"

#include <algorithm>
#include <utility>

namespace varnhold {

void MorphListDirty::addRow(int row)
{
    if (row < 0 || all || rows.contains(row))
        return;
    if (rows.size() == rows.capacity())
        all = true;
    else
        rows.append(row);
}

void MorphListModel::addInPlace(QString&& text, std::optional<int> index)
{
    if (!m_enabled)
        return;
    if (index) {
        if (*index < 0 || *index > count())
            return;
        settle();
        m_items.insert(*index, std::move(text));
        m_selection.onInserted(*index);
    } else {
        const bool queued = !m_items.settled();
        m_items.addSorted(std::move(text));
        if (m_items.settled() && !queued)
            m_selection.onInserted(m_items.newIndex());
    }
    itemsChanged();
}

void MorphListModel::RemoveItem(int index)
{
    if (!m_enabled || !contains(index))
        return;
    settle();
    m_items.remove(index);
    m_selection.onRemoved(index);
    m_pressedRow = -1;
    m_hoverRow = std::min(m_hoverRow, count() - 1);
    itemsChanged();
}

void MorphListModel::Clear()
{
    if (!m_enabled)
        return;
    m_items.clear();
    m_selection.onCleared();
    m_scroll.setFirst(0);
    m_pressedRow = -1;
    m_hoverRow = -1;
    itemsChanged();
}

void MorphListModel::ClearOrSelect()
{
    if (!m_enabled)
        return;
    settle();
    m_selection.clearOrSelect();
    m_dirty.all = true;
}

void MorphListModel::Sort(bool descending)
{
    if (!m_enabled)
        return;
    settle();
    m_items.sortDescending();
    if (!descending)
        m_items.reverse();
    m_selection.onSorted();
    itemsChanged();
    scrolled(m_scroll.setFirst(0));
}

void MorphListModel::ReverseStringArray()
{
    if (!m_enabled)
        return;
    settle();
    m_items.reverse();
    m_selection.onReversed();
    itemsChanged();
}

int MorphListModel::FindIndex(const QString& text, bool matchCase)
{
    if (!m_enabled)
        return -1;
    settle();
    return m_items.find(text, matchCase, m_sorted);
}

void MorphListModel::DisplayFrom(int index)
{
    if (!m_enabled || !contains(index))
        return;
    static_cast<void>(metrics()); // brings the number of rows up to date
    if (m_scroll.scrolls())
        scrolled(m_scroll.setFirst(index));
}

int MorphListModel::MouseOverIndex(int y)
{
    if (!m_enabled)
        return -1;
    const int visible = metrics().rowAt(y);
    const int index = m_scroll.first() + visible;
    return visible >= 0 && index <= m_scroll.last() ? index : -1;
}

QString MorphListModel::text(int index)
{
    settle();
    return contains(index) ? m_items.text(index) : QString();
}

void MorphListModel::setText(int index, const QString& text)
{
    if (!contains(index))
        return;
    settle();
    m_items.setText(index, text);
    m_dirty.addRow(index);
}

qint32 MorphListModel::itemData(int index)
{
    settle();
    return contains(index) ? m_items.data.at(index) : 0;
}

void MorphListModel::setItemData(int index, qint32 data)
{
    if (!contains(index))
        return;
    settle();
    m_items.data.set(index, data, count());
}

int MorphListModel::imageIndex(int index)
{
    settle();
    return contains(index) ? m_items.images.at(index) : -1;
}

void MorphListModel::setImageIndex(int index, int image)
{
    if (!contains(index))
        return;
    settle();
    m_items.images.set(index, image, count());
    m_dirty.addRow(index);
}

bool MorphListModel::selected(int index)
{
    settle();
    return contains(index) && m_selection.selected(index);
}

void MorphListModel::setSelected(int index, bool selected)
{
    if (!m_enabled || !contains(index))
        return;
    settle();
    if (checkList() || multiSelect() != SelectMode::Single) { // often called for each of many rows
        m_selection.setSelected(index, selected);
        m_dirty.addRow(index);
        return;
    }
    const MorphListShown before = shown();
    m_selection.setSelected(index, selected);
    selectionChanged(before);
}

int MorphListModel::newIndex()
{
    settle();
    return m_items.newIndex();
}

void MorphListModel::setNewIndex(int index)
{
    settle();
    m_items.setNewIndex(index);
}

void MorphListModel::setEnabled(bool enabled)
{
    if (std::exchange(m_enabled, enabled) == enabled)
        return;
    MorphListEvents unheard; // a list that is off raises nothing
    endCapture(unheard);
    m_tracking = false;
    m_hoverRow = -1;
    m_dirty.all = true;
}

void MorphListModel::setSortAsNumeric(bool numeric)
{
    settle();
    m_items.setNumeric(numeric);
}

void MorphListModel::setMultiSelect(SelectMode mode)
{
    settle();
    m_selection.setMode(mode);
    m_dirty.all = true;
}

void MorphListModel::setCheckList(bool on)
{
    settle();
    m_selection.setCheckList(on);
    m_measure.checkList = on;
    m_metrics.reset();
    m_dirty.all = true;
}

int MorphListModel::listIndex()
{
    settle();
    return m_selection.listIndex();
}

void MorphListModel::setListIndex(int index)
{
    if (!m_enabled || index < -1 || index >= count())
        return;
    const MorphListShown before = shown();
    m_selection.setListIndex(index);
    selectionChanged(before);
    scrolled(m_scroll.showRow(index));
}

int MorphListModel::selectedCount()
{
    settle();
    return m_selection.selectedCount();
}

int MorphListModel::topIndex()
{
    static_cast<void>(metrics());
    return m_scroll.first();
}

void MorphListModel::setTopIndex(int index)
{
    if (!m_enabled)
        return;
    static_cast<void>(metrics());
    scrolled(m_scroll.setFirst(index));
}

int MorphListModel::lastVisible()
{
    static_cast<void>(metrics());
    return m_scroll.last();
}

int MorphListModel::focusRow()
{
    settle();
    // Before the first move the focus shows where it would begin.
    return m_selection.focusRow() < 0 && count() > 0 ? topIndex() : m_selection.focusRow();
}

bool MorphListModel::showsSelected(int index)
{
    settle();
    return m_selection.showsSelected(index);
}

void MorphListModel::setMeasure(const MorphListMeasure& measure)
{
    MorphListMeasure filled = measure;
    filled.checkList = checkList();
    if (filled == m_measure)
        return;
    m_measure = filled;
    m_metrics.reset();
    m_dirty.all = true;
}

const MorphListMetrics& MorphListModel::metrics()
{
    settle();
    if (!m_metrics) {
        m_metrics.emplace(m_measure, count(), m_scroll.first());
        if (m_scroll.setExtent(count(), m_metrics->rows()))
            m_metrics.emplace(m_measure, count(), m_scroll.first());
    }
    return *m_metrics;
}

MorphListDirty MorphListModel::takeDirty()
{
    return std::exchange(m_dirty, {});
}

MorphListShown MorphListModel::shown()
{
    MorphListShown shown;
    shown.focusRow = focusRow();
    const int top = topIndex();
    for (int row = top; row <= m_scroll.last(); ++row) {
        shown.rows.at(size_t(row - top)) =
            quint8(int(m_selection.selected(row)) | int(m_selection.showsSelected(row)) << 1);
    }
    return shown;
}

void MorphListModel::selectionChanged(const MorphListShown& before)
{
    const MorphListShown now = shown();
    for (size_t i = 0; i < now.rows.size(); ++i) {
        if (now.rows[i] != before.rows[i])
            m_dirty.addRow(m_scroll.first() + int(i));
    }
    if (now.focusRow != before.focusRow) {
        m_dirty.addRow(before.focusRow);
        m_dirty.addRow(now.focusRow);
    }
}

void MorphListModel::scrolled(bool changed)
{
    if (!changed)
        return;
    m_metrics.reset();
    m_dirty.all = true;
}

} // namespace varnhold
