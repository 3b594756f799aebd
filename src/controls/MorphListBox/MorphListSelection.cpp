#include "controls/MorphListBox/MorphListSelection.h"

#include <algorithm>

namespace varnhold {

int MorphListSelection::selectedCount() const
{
    return single() ? int(m_listIndex >= 0) : m_items.selected.countOf(1, m_items.count());
}

bool MorphListSelection::selected(int row) const
{
    return single() ? row == m_listIndex : m_items.selected.at(row) != 0;
}

bool MorphListSelection::showsSelected(int row) const
{
    return m_checkList ? row == m_listIndex : selected(row);
}

void MorphListSelection::setMode(SelectMode mode)
{
    const bool wasSingle = single();
    m_mode = mode;
    if (wasSingle != single() && !m_checkList)
        wasSingle ? selectOnly(m_listIndex) : m_items.selected.clear();
}

void MorphListSelection::setCheckList(bool on)
{
    if (m_checkList == on)
        return;
    // A check is no selection and a selection no check, so neither turns into the other.
    m_checkList = on;
    m_items.selected.clear();
}

void MorphListSelection::setListIndex(int row)
{
    m_listIndex = m_focus = m_anchor = row;
}

void MorphListSelection::setSelected(int row, bool selected)
{
    if (!single())
        m_items.selected.set(row, quint8(selected), m_items.count());
    else if (selected)
        setListIndex(row);
    else if (row == m_listIndex)
        m_listIndex = -1;
}

void MorphListSelection::clearOrSelect()
{
    if (single())
        m_listIndex = -1;
    else if (selectedCount() > 0)
        m_items.selected.clear();
    else if (m_items.count() > 0)
        selectRange(0, m_items.count() - 1);
}

void MorphListSelection::press(int row, int shiftState)
{
    const bool shift = (shiftState & shiftstate::shift) != 0;
    const bool ctrl = (shiftState & shiftstate::ctrl) != 0;
    m_listIndex = row;
    m_focus = row;
    if (m_checkList || m_mode == SelectMode::Simple) {
        toggle(row);
    } else if (m_mode == SelectMode::Single) {
        selectOnly(row);
    } else if (shift) {
        if (!ctrl)
            m_items.selected.clear();
        m_anchor = m_anchor < 0 ? row : m_anchor;
        selectRange(m_anchor, row);
        return;
    } else if (ctrl) {
        toggle(row);
    } else {
        selectOnly(row);
    }
    m_anchor = row;
}

void MorphListSelection::drag(int row)
{
    if (row == m_focus || !extendsByDrag())
        return;
    m_listIndex = row;
    m_focus = row;
    if (m_mode == SelectMode::Single) {
        selectOnly(row);
    } else {
        m_items.selected.clear();
        selectRange(m_anchor < 0 ? row : m_anchor, row);
    }
}

void MorphListSelection::moveTo(int row, int shiftState)
{
    m_focus = row;
    if ((shiftState & shiftstate::ctrl) != 0)
        return;
    m_listIndex = row;
    if (m_checkList || m_mode == SelectMode::Simple)
        return;
    if (m_mode == SelectMode::Extended && (shiftState & shiftstate::shift) != 0) {
        m_items.selected.clear();
        m_anchor = m_anchor < 0 ? row : m_anchor;
        selectRange(m_anchor, row);
        return;
    }
    selectOnly(row);
    m_anchor = row;
}

void MorphListSelection::toggleFocusRow()
{
    if (m_focus < 0)
        return;
    const int row = m_focus;
    if (single()) {
        m_listIndex = row == m_listIndex ? -1 : row;
    } else {
        toggle(row);
        m_listIndex = row;
    }
    m_anchor = row;
}

void MorphListSelection::onInserted(int row)
{
    for (int* index : {&m_listIndex, &m_focus, &m_anchor}) {
        if (*index >= row)
            ++*index;
    }
}

void MorphListSelection::onMerged(std::span<const int> slots)
{
    for (int* index : {&m_listIndex, &m_focus, &m_anchor}) {
        if (*index >= 0)
            *index += int(std::upper_bound(slots.begin(), slots.end(), *index) - slots.begin());
    }
}

void MorphListSelection::onRemoved(int row)
{
    m_focus = std::min(m_focus > row ? m_focus - 1 : m_focus, m_items.count() - 1);
    for (int* index : {&m_listIndex, &m_anchor}) {
        if (*index == row)
            *index = -1;
        else if (*index > row)
            --*index;
    }
}

void MorphListSelection::onCleared()
{
    m_listIndex = m_focus = m_anchor = -1;
}

void MorphListSelection::onSorted()
{
    const int top = m_items.count() > 0 ? 0 : -1;
    if (!m_checkList) // the checks stay with their items
        m_items.selected.clear();
    m_listIndex = m_checkList || m_mode == SelectMode::Single ? top : -1;
    m_focus = m_anchor = top;
}

void MorphListSelection::onReversed()
{
    for (int* index : {&m_listIndex, &m_focus, &m_anchor}) {
        if (*index >= 0)
            *index = m_items.count() - 1 - *index;
    }
}

void MorphListSelection::toggle(int row)
{
    m_items.selected.set(row, m_items.selected.at(row) == 0, m_items.count());
}

void MorphListSelection::selectOnly(int row)
{
    m_items.selected.clear();
    if (row >= 0 && !single())
        m_items.selected.set(row, 1, m_items.count());
}

void MorphListSelection::selectRange(int from, int to)
{
    m_items.selected.fill(1, std::min(from, to), std::max(from, to), m_items.count());
}

} // namespace varnhold
