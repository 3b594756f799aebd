#pragma once

#include "controls/MorphListBox/MorphListItems.h"

#include <span>

namespace varnhold {

/// Bits of a key event's shift state.
namespace shiftstate {
inline constexpr int shift = 1;
inline constexpr int ctrl = 2;
inline constexpr int alt = 4;
} // namespace shiftstate

enum class SelectMode { Single = 0, Simple = 1, Extended = 2 };

/// Selection flags, current row, focus row and anchor, and what a press or a key does to them. In a check
/// list the flags are the checks, whatever the mode, and the current row is the one that shows selected. In
/// a plain list of mode single no flags are kept: the current row is the selected one.
class MorphListSelection
{
public:
    explicit MorphListSelection(MorphListItems& items) : m_items(items) {}

    [[nodiscard]] int listIndex() const { return m_listIndex; }
    [[nodiscard]] int focusRow() const { return m_focus; }
    [[nodiscard]] int selectedCount() const;
    [[nodiscard]] bool selected(int row) const;
    [[nodiscard]] bool showsSelected(int row) const; ///< painted as selected
    [[nodiscard]] SelectMode mode() const { return m_mode; }
    [[nodiscard]] bool checkList() const { return m_checkList; }

    void setMode(SelectMode mode);
    void setCheckList(bool on);
    void setListIndex(int row);
    void setSelected(int row, bool selected);
    void clearOrSelect();

    void press(int row, int shiftState);
    void drag(int row); ///< the press goes on over another row
    [[nodiscard]] bool extendsByDrag() const { return !m_checkList && m_mode != SelectMode::Simple; }
    /// A key moves the focus to that row.
    void moveTo(int row, int shiftState);
    void toggleFocusRow();
    void storeAnchor() { m_anchor = m_focus; }

    // The items have changed.
    void onInserted(int row);
    void onMerged(std::span<const int> slots); ///< as MorphListItems::settle() gives them
    void onRemoved(int row);
    void onCleared();
    void onSorted();
    void onReversed();

private:
    [[nodiscard]] bool single() const { return m_mode == SelectMode::Single && !m_checkList; }
    void toggle(int row);
    void selectOnly(int row);
    void selectRange(int from, int to);

    MorphListItems& m_items;
    SelectMode m_mode = SelectMode::Single;
    bool m_checkList = false;
    int m_listIndex = -1;
    int m_focus = -1;
    int m_anchor = -1;
};

} // namespace varnhold
