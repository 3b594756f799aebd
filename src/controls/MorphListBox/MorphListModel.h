#pragma once

#include "controls/MorphListBox/MorphListDesign.h"
#include "controls/MorphListBox/MorphListItems.h"
#include "controls/MorphListBox/MorphListMetrics.h"
#include "controls/MorphListBox/MorphListRepeat.h"
#include "controls/MorphListBox/MorphListScroll.h"
#include "controls/MorphListBox/MorphListSelection.h"

#include <QVarLengthArray>

#include <array>
#include <optional>
#include <utility>

namespace varnhold {

/// What the mouse is held on.
enum class CaptureMode {
    None = 0,
    SelectingRows = 1,
    PageUp = 2,
    PageDown = 3,
    LowerArrow = 4,
    UpperArrow = 5,
    Thumb = 6,
};

namespace mousebutton {
inline constexpr int left = 1;
inline constexpr int right = 2;
inline constexpr int middle = 4;
} // namespace mousebutton

/// An event that the list raises, with the arguments of its kind.
struct MorphListEvent
{
    enum class Kind { Click, DblClick, KeyDown, KeyUp, MouseDown, MouseMove, MouseUp, MouseEnter, MouseExit };

    Kind kind;
    int code = 0; ///< button or key code
    int shift = 0;
    QPoint position;

    bool operator==(const MorphListEvent&) const = default;
};

/// Events in the order in which they are to be raised. The model raises none itself: what a listener does to
/// the list, or the list's end, meets no half-done routine.
using MorphListEvents = QVarLengthArray<MorphListEvent, 3>;

/// What has to be painted again.
struct MorphListDirty
{
    bool all = false;
    bool items = false; ///< `all`, since the items are others
    bool scrollBar = false;
    QVarLengthArray<int, 8> rows; ///< item indexes, few; more count as `all`

    void addRow(int row);
};

/// What of the selection shows, so that a change repaints the rows that it involves and no others.
struct MorphListShown
{
    std::array<quint8, MorphListConstants::rowLimit> rows{}; ///< from the first visible one
    int focusRow = -1;
};

/// Whole state and behaviour of a list, without a widget: items, selection, scrolling, mouse, keys, focus
/// and auto-repeat. While it is not enabled, all but the item fields stays as it is.
class MorphListModel
{
public:
    MorphListModel() : m_selection(m_items) {}
    MorphListModel(const MorphListModel&) = delete;
    MorphListModel& operator=(const MorphListModel&) = delete;

    // Items
    void AddItem(QString&& text, std::optional<int> index = {})
    {
        if (m_enabled && !m_sorted && !index) { // the way of a bulk fill
            settle();
            m_items.append(std::move(text));
            itemsChanged();
        } else {
            addInPlace(std::move(text), index);
        }
    }
    void AddItem(const QString& text, std::optional<int> index = {}) { AddItem(QString(text), index); }
    void RemoveItem(int index);
    void Clear();
    void ClearOrSelect();
    void Sort(bool descending);
    void ReverseStringArray();
    [[nodiscard]] int FindIndex(const QString& text, bool matchCase);
    void DisplayFrom(int index);
    [[nodiscard]] int MouseOverIndex(int y);

    [[nodiscard]] int count() const { return m_items.count(); }
    [[nodiscard]] bool contains(int index) const { return index >= 0 && index < m_items.count(); }
    [[nodiscard]] QString text(int index);
    void setText(int index, const QString& text);
    [[nodiscard]] qint32 itemData(int index);
    void setItemData(int index, qint32 data);
    [[nodiscard]] int imageIndex(int index);
    void setImageIndex(int index, int image);
    [[nodiscard]] bool selected(int index);
    void setSelected(int index, bool selected);
    [[nodiscard]] int newIndex();
    void setNewIndex(int index);

    // Behaviour
    [[nodiscard]] bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    [[nodiscard]] bool sorted() const { return m_sorted; }
    void setSorted(bool sorted) { m_sorted = sorted; }
    [[nodiscard]] bool sortAsNumeric() const { return m_items.numeric(); }
    void setSortAsNumeric(bool numeric);
    [[nodiscard]] SelectMode multiSelect() const { return m_selection.mode(); }
    void setMultiSelect(SelectMode mode);
    [[nodiscard]] bool checkList() const { return m_selection.checkList(); }
    void setCheckList(bool on);
    int dblClickBehavior = 1; ///< 0: a double click on a row is a second press
    bool dragEnabled = false; ///< a drag over rows carries them away instead of selecting

    // State
    [[nodiscard]] int listIndex();
    void setListIndex(int index);
    [[nodiscard]] int selectedCount();
    [[nodiscard]] int topIndex();
    void setTopIndex(int index);
    [[nodiscard]] int lastVisible();
    [[nodiscard]] int focusRow(); ///< the row that shows the keyboard focus, -1 in an empty list
    [[nodiscard]] bool showsSelected(int index);
    [[nodiscard]] bool focused() const { return m_focused; }
    [[nodiscard]] bool hovered() const { return m_tracking; }
    [[nodiscard]] int hoverRow() const { return m_hoverRow; } ///< -1 when none
    [[nodiscard]] HitZone hitZone() const { return m_zone; }
    [[nodiscard]] CaptureMode capture() const { return m_capture; }
    [[nodiscard]] int pressedRow() const { return m_pressedRow; } ///< of the last press, -1 when none
    /// Shift and Ctrl as the last key event left them, as in shiftstate; none after a loss of the focus.
    [[nodiscard]] int heldKeys() const
    {
        return (m_shift ? shiftstate::shift : 0) | (m_ctrl ? shiftstate::ctrl : 0);
    }
    /// beat() is wanted: a scroll part is held, or rows are dragged over past the upper or lower edge.
    [[nodiscard]] bool repeating() const { return m_repeat.held() || dragScroll() != 0; }

    /// Lengths that the geometry depends on; the model fills in what it knows itself.
    void setMeasure(const MorphListMeasure& measure);
    [[nodiscard]] const MorphListMetrics& metrics();

    // Input. Times are milliseconds of one clock; positions logical pixels of the list.
    [[nodiscard]] MorphListEvents press(int button, int shift, QPoint position, qint64 now);
    [[nodiscard]] MorphListEvents move(int button, int shift, QPoint position);
    /// `inside`: released over the list, so the host calls it a click.
    [[nodiscard]] MorphListEvents release(int button, int shift, QPoint position, bool inside);
    [[nodiscard]] MorphListEvents doubleClick(int button, int shift, QPoint position, qint64 now);
    [[nodiscard]] MorphListEvents leave();
    [[nodiscard]] MorphListEvents beat(qint64 now); ///< every repeatPoll while repeating()
    [[nodiscard]] MorphListEvents keyDown(int keyCode, int shift);
    [[nodiscard]] MorphListEvents keyUp(int keyCode, int shift);
    void wheel(int delta); ///< below 1, also 0, scrolls down; only while focused
    void focusIn();
    [[nodiscard]] MorphListEvents focusOut();
    void cancelCapture(); ///< the mouse went elsewhere for good
    /// Presses and releases a row without a mouse.
    [[nodiscard]] MorphListEvents activate(int index);
    /// What a drag of rows carries: the selected texts, a line each.
    [[nodiscard]] QString dragText();

    [[nodiscard]] MorphListDirty takeDirty();

private:
    void settle()
    {
        if (!m_items.settled())
            m_selection.onMerged(m_items.settle());
    }
    void itemsChanged()
    {
        m_metrics.reset();
        m_dirty.all = true;
        m_dirty.items = true;
    }
    [[nodiscard]] MorphListShown shown();
    void selectionChanged(const MorphListShown& before);
    void addInPlace(QString&& text, std::optional<int> index);
    void scrolled(bool changed);
    void hold(CaptureMode mode, qint64 now, const MorphListEvent& down);
    void stepHeld();
    [[nodiscard]] bool onHeldPart();
    [[nodiscard]] int dragScroll() const; ///< -1 up, 1 down, 0 not
    void dragTo(int row);
    void moveFocus(int row, int shift);
    void endCapture(MorphListEvents& events);

    MorphListItems m_items;
    MorphListSelection m_selection;
    MorphListScroll m_scroll;
    MorphListRepeat m_repeat;
    MorphListMeasure m_measure;
    std::optional<MorphListMetrics> m_metrics;
    MorphListDirty m_dirty;

    bool m_enabled = true;
    bool m_sorted = true;
    bool m_focused = false;
    bool m_tracking = false;
    bool m_shift = false;
    bool m_ctrl = false;

    QPoint m_position;
    HitZone m_zone = HitZone::Rows;
    CaptureMode m_capture = CaptureMode::None;
    int m_hoverRow = -1;
    int m_pressedRow = -1;
    int m_pressedButton = 0;
    qint64 m_dragStep = 0;                    ///< when dragScroll() last moved the rows
    int m_grip = 0;                           ///< from the thumb's top to the press on it
    std::optional<MorphListEvent> m_heldDown; ///< MouseDown that waits for the end of the auto-repeat
};

} // namespace varnhold
