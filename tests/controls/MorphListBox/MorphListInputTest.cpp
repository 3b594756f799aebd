#include "controls/MorphListBox/MorphListKeys.h"
#include "controls/MorphListBox/MorphListModel.h"

#include <gtest/gtest.h>

namespace varnhold {

namespace {

using namespace Qt::StringLiterals;
using Kind = MorphListEvent::Kind;
constexpr int left = mousebutton::left;

std::vector<Kind> kindsOf(const MorphListEvents& events)
{
    std::vector<Kind> kinds;
    for (const MorphListEvent& event : events)
        kinds.push_back(event.kind);
    return kinds;
}

/// Forty rows "0" to "39" of 10 pixels, of which 20 fit, beside a bar of 16 pixels.
class MorphListInput : public testing::Test
{
protected:
    MorphListInput()
    {
        MorphListMeasure measure;
        measure.ScaleWidth = 100;
        measure.ScaleHeight = 210;
        measure.fontHeight = 10;
        m_list.setMeasure(measure);
        m_list.setSorted(false);
        for (int i = 0; i < 40; ++i)
            m_list.AddItem(QString::number(i));
    }

    QPoint row(int visible) { return m_list.metrics().row(visible).center(); }
    static constexpr QPoint upperArrow{90, 5};
    static constexpr QPoint lowerArrow{90, 205};

    void click(QPoint position, int shift = 0)
    {
        static_cast<void>(m_list.press(left, shift, position, 0));
        static_cast<void>(m_list.release(left, shift, position, true));
    }
    void key(int code, int shift = 0) { static_cast<void>(m_list.keyDown(code, shift)); }
    QString selection()
    {
        QStringList rows;
        for (int i = 0; i < m_list.count(); ++i) {
            if (m_list.selected(i))
                rows.append(QString::number(i));
        }
        return rows.join(u',');
    }

    MorphListModel m_list;
};

} // namespace

TEST_F(MorphListInput, ClicksSelectByMode)
{
    click(row(3));
    click(row(5), shiftstate::ctrl);
    EXPECT_EQ(selection(), u"5"_s);
    EXPECT_EQ(m_list.listIndex(), 5);

    m_list.setMultiSelect(SelectMode::Simple);
    EXPECT_EQ(selection(), u"5"_s) << "the selection outlives the change of mode";
    click(row(7));
    click(row(5));
    EXPECT_EQ(selection(), u"7"_s);

    m_list.setMultiSelect(SelectMode::Extended);
    click(row(2));
    click(row(4), shiftstate::shift);
    EXPECT_EQ(selection(), u"2,3,4"_s);
    click(row(1), shiftstate::shift);
    EXPECT_EQ(selection(), u"1,2"_s) << "the anchor stays";
    click(row(8), shiftstate::ctrl);
    click(row(1), shiftstate::ctrl);
    EXPECT_EQ(selection(), u"2,8"_s);
    click(row(6));
    EXPECT_EQ(selection(), u"6"_s);

    m_list.setCheckList(true);
    EXPECT_EQ(selection(), QString()) << "a selection is no check";
    click(row(3));
    click(row(4));
    click(row(3));
    EXPECT_EQ(selection(), u"4"_s);
    EXPECT_TRUE(m_list.showsSelected(3));
}

TEST_F(MorphListInput, ADragExtendsTheSelection)
{
    m_list.setMultiSelect(SelectMode::Extended);
    static_cast<void>(m_list.press(left, 0, row(4), 0));
    static_cast<void>(m_list.move(left, 0, row(7)));
    EXPECT_EQ(selection(), u"4,5,6,7"_s);
    static_cast<void>(m_list.move(left, 0, row(3)));
    EXPECT_EQ(selection(), u"3,4"_s);
    static_cast<void>(m_list.move(left, 0, lowerArrow));
    EXPECT_EQ(selection(), u"3,4"_s) << "not over the scroll bar";
    static_cast<void>(m_list.release(left, 0, row(3), true));
    static_cast<void>(m_list.move(0, 0, row(9)));
    EXPECT_EQ(selection(), u"3,4"_s);
}

TEST_F(MorphListInput, ADragPastAnEdgeScrolls)
{
    m_list.setMultiSelect(SelectMode::Extended);
    static_cast<void>(m_list.press(left, 0, row(18), 0));
    static_cast<void>(m_list.move(left, 0, {20, 300}));
    ASSERT_TRUE(m_list.repeating());
    for (const qint64 time : {100, 125, 150})
        EXPECT_TRUE(m_list.beat(time).isEmpty());
    EXPECT_EQ(selection(), u"18,19,20,21"_s) << "a row each 50 ms";
    EXPECT_EQ(m_list.topIndex(), 2);
    for (qint64 time = 200; time < 3000; time += 50)
        static_cast<void>(m_list.beat(time));
    EXPECT_EQ(m_list.listIndex(), 39);
    static_cast<void>(m_list.move(left, 0, {20, -1}));
    static_cast<void>(m_list.beat(5000));
    EXPECT_EQ(m_list.topIndex(), 19);
    static_cast<void>(m_list.move(left, 0, row(3)));
    EXPECT_FALSE(m_list.repeating()) << "back in the list";
    static_cast<void>(m_list.move(left, 0, {20, 300}));
    static_cast<void>(m_list.release(left, 0, {20, 300}, false));
    EXPECT_FALSE(m_list.repeating());
}

TEST_F(MorphListInput, RepaintsTheRowsInvolvedOnly)
{
    const auto dirtyRows = [this] {
        const MorphListDirty dirty = m_list.takeDirty();
        QStringList rows;
        for (const int row : dirty.rows)
            rows.append(QString::number(row));
        rows.sort();
        return dirty.all ? u"all"_s : rows.join(u',');
    };
    m_list.setMultiSelect(SelectMode::Extended);
    m_list.focusIn();
    static_cast<void>(m_list.metrics());
    static_cast<void>(dirtyRows());
    click(row(3));
    EXPECT_EQ(dirtyRows(), u"0,3"_s) << "row 0 had the focus rectangle";
    click(row(5), shiftstate::shift);
    EXPECT_EQ(dirtyRows(), u"3,4,5"_s);
    click(row(7));
    EXPECT_EQ(dirtyRows(), u"3,4,5,7"_s);
    click(row(7));
    EXPECT_EQ(dirtyRows(), QString());
    key(keycode::end);
    EXPECT_EQ(dirtyRows(), u"all"_s) << "scrolled";
}

TEST_F(MorphListInput, ClickNeedsALeftPressOnARowAndAReleaseInside)
{
    EXPECT_EQ(kindsOf(m_list.press(left, 0, row(2), 0)), std::vector{Kind::MouseDown});
    EXPECT_EQ(kindsOf(m_list.release(left, 0, row(2), true)), (std::vector{Kind::MouseUp, Kind::Click}));
    static_cast<void>(m_list.press(left, 0, row(2), 0));
    EXPECT_EQ(kindsOf(m_list.release(left, 0, {-50, 0}, false)), std::vector{Kind::MouseUp});
    static_cast<void>(m_list.press(left, 0, {20, 2}, 0)); // above row 0
    EXPECT_EQ(kindsOf(m_list.release(left, 0, {20, 2}, true)), std::vector{Kind::MouseUp});
    EXPECT_EQ(m_list.listIndex(), 2);
    EXPECT_EQ(kindsOf(m_list.press(mousebutton::right, 0, row(6), 0)), std::vector{Kind::MouseDown});
    EXPECT_EQ(kindsOf(m_list.release(mousebutton::right, 0, row(6), true)), std::vector{Kind::MouseUp});
    EXPECT_EQ(m_list.listIndex(), 2) << "a right click never changes the selection";
}

TEST_F(MorphListInput, AHeldArrowRestsOffThePartAndGoesOn)
{
    EXPECT_TRUE(m_list.press(left, 0, lowerArrow, 1000).isEmpty()) << "MouseDown waits for the repeat's end";
    EXPECT_EQ(m_list.topIndex(), 1);
    EXPECT_EQ(m_list.capture(), CaptureMode::LowerArrow);
    for (const int time : {1025, 1399})
        static_cast<void>(m_list.beat(time));
    EXPECT_EQ(m_list.topIndex(), 1) << "400 ms after the first step";
    for (const int time : {1400, 1425, 1449, 1450})
        static_cast<void>(m_list.beat(time));
    EXPECT_EQ(m_list.topIndex(), 3) << "then 50 ms apart";
    static_cast<void>(m_list.move(left, 0, row(3)));
    EXPECT_EQ(kindsOf(m_list.beat(1500)), std::vector{Kind::MouseDown});
    static_cast<void>(m_list.beat(1600));
    EXPECT_EQ(m_list.topIndex(), 3);
    static_cast<void>(m_list.move(left, 0, lowerArrow));
    static_cast<void>(m_list.beat(1625));
    EXPECT_EQ(m_list.topIndex(), 4) << "back on the arrow";
    EXPECT_EQ(kindsOf(m_list.release(left, 0, lowerArrow, true)), std::vector{Kind::MouseUp});
    EXPECT_FALSE(m_list.repeating());
    EXPECT_EQ(m_list.capture(), CaptureMode::None);

    static_cast<void>(m_list.press(mousebutton::middle, 0, lowerArrow, 1900));
    EXPECT_EQ(kindsOf(m_list.press(left, 0, upperArrow, 2000)), std::vector{Kind::MouseDown})
        << "a second button ends the first one's repeat";
    EXPECT_EQ(m_list.topIndex(), 4);
    static_cast<void>(m_list.beat(2400));
    EXPECT_EQ(m_list.topIndex(), 3);
    EXPECT_EQ(kindsOf(m_list.release(left, 0, upperArrow, true)),
              (std::vector{Kind::MouseUp, Kind::MouseDown}));
    for (int time = 3000; time < 9000; time += 100) {
        static_cast<void>(m_list.press(left, 0, upperArrow, time));
        static_cast<void>(m_list.release(left, 0, upperArrow, true));
    }
    EXPECT_EQ(m_list.topIndex(), 0);
}

TEST_F(MorphListInput, TheTrackPagesUntilTheThumbIsUnderThePointer)
{
    const QPoint low{90, 190};
    static_cast<void>(m_list.press(left, 0, low, 0));
    EXPECT_EQ(m_list.capture(), CaptureMode::PageDown);
    EXPECT_EQ(m_list.topIndex(), 20);
    static_cast<void>(m_list.beat(400));
    EXPECT_EQ(m_list.topIndex(), 20);
    static_cast<void>(m_list.release(left, 0, low, true));
    static_cast<void>(m_list.press(left, 0, {90, 20}, 1000));
    EXPECT_EQ(m_list.capture(), CaptureMode::PageUp);
    EXPECT_EQ(m_list.topIndex(), 0);
    static_cast<void>(m_list.focusOut());
    EXPECT_EQ(m_list.capture(), CaptureMode::None) << "focus loss ends every capture";
}

TEST_F(MorphListInput, TheThumbCarriesTheRows)
{
    static_cast<void>(m_list.press(left, 0, {90, 30}, 0));
    EXPECT_EQ(m_list.capture(), CaptureMode::Thumb);
    static_cast<void>(m_list.move(left, 0, {90, 30 + 89 / 2}));
    EXPECT_EQ(m_list.topIndex(), 10);
    static_cast<void>(m_list.move(left, 0, {-500, 5000}));
    EXPECT_EQ(m_list.topIndex(), 20);
    static_cast<void>(m_list.move(left, 0, {90, -5000}));
    EXPECT_EQ(m_list.topIndex(), 0);
}

TEST_F(MorphListInput, ADoubleClickPressesOrRaisesDblClick)
{
    EXPECT_EQ(kindsOf(m_list.doubleClick(left, 0, row(2), 0)), std::vector{Kind::DblClick});
    EXPECT_EQ(kindsOf(m_list.release(left, 0, row(2), true)), std::vector{Kind::MouseUp});
    static_cast<void>(m_list.doubleClick(left, 0, lowerArrow, 0));
    EXPECT_EQ(m_list.topIndex(), 1) << "on a scroll part it is a further press";
    static_cast<void>(m_list.release(left, 0, lowerArrow, true));
    m_list.dblClickBehavior = 0;
    EXPECT_EQ(kindsOf(m_list.doubleClick(left, 0, row(2), 0)), std::vector{Kind::MouseDown});
    m_list.dblClickBehavior = 1;
    m_list.setCheckList(true);
    click(row(2));
    EXPECT_EQ(kindsOf(m_list.doubleClick(left, 0, row(2), 0)), std::vector{Kind::MouseDown});
    EXPECT_FALSE(m_list.selected(3)) << "two quick clicks check and clear";
}

TEST_F(MorphListInput, KeysMoveTheFocusAndTheSelection)
{
    struct Case
    {
        int code;
        int expected;
    };
    for (const Case& c : {Case{40, 0}, Case{39, 1}, Case{34, 21}, Case{34, 39}, Case{40, 39}, Case{33, 19},
                          Case{38, 18}, Case{37, 17}, Case{36, 0}, Case{38, 0}, Case{35, 39}}) {
        EXPECT_EQ(kindsOf(m_list.keyDown(c.code, 0)), std::vector{Kind::KeyDown});
        EXPECT_EQ(m_list.listIndex(), c.expected) << c.code;
        EXPECT_GE(m_list.listIndex(), m_list.topIndex());
        EXPECT_LE(m_list.listIndex(), m_list.lastVisible());
    }
    key(keycode::up, shiftstate::ctrl);
    EXPECT_EQ(m_list.focusRow(), 38);
    EXPECT_EQ(m_list.listIndex(), 39) << "Ctrl moves the focus alone";
    key(keycode::space);
    EXPECT_EQ(selection(), u"38"_s);
    key(keycode::space);
    EXPECT_EQ(selection(), QString());

    m_list.setMultiSelect(SelectMode::Extended);
    key(keycode::home);
    key(keycode::down);
    key(keycode::shift, shiftstate::shift);
    key(keycode::down, shiftstate::shift);
    key(keycode::down, shiftstate::shift);
    EXPECT_EQ(selection(), u"1,2,3"_s);
    key(keycode::up, shiftstate::shift);
    EXPECT_EQ(selection(), u"1,2"_s);
    key(keycode::down, shiftstate::ctrl);
    key(keycode::down, shiftstate::ctrl);
    key(keycode::space, shiftstate::ctrl);
    EXPECT_EQ(selection(), u"1,2,4"_s);
    EXPECT_EQ(m_list.heldKeys(), shiftstate::ctrl);
    static_cast<void>(m_list.focusOut());
    EXPECT_EQ(m_list.heldKeys(), 0);
}

TEST_F(MorphListInput, TheWheelScrollsWhileFocused)
{
    m_list.wheel(-120);
    EXPECT_EQ(m_list.topIndex(), 0);
    m_list.focusIn();
    m_list.wheel(-120);
    m_list.wheel(0);
    EXPECT_EQ(m_list.topIndex(), 2) << "a delta of 0 scrolls down";
    m_list.wheel(1);
    EXPECT_EQ(m_list.topIndex(), 1);
    for (int i = 0; i < 50; ++i)
        m_list.wheel(-1);
    EXPECT_EQ(m_list.topIndex(), 20);
    EXPECT_EQ(m_list.lastVisible(), 39);
}

TEST_F(MorphListInput, EntersWithTheFirstMoveAndLeavesOnce)
{
    EXPECT_EQ(kindsOf(m_list.move(0, 0, row(4))), (std::vector{Kind::MouseEnter, Kind::MouseMove}));
    EXPECT_EQ(m_list.hoverRow(), 4);
    EXPECT_EQ(kindsOf(m_list.move(0, 0, row(5))), std::vector{Kind::MouseMove});
    EXPECT_EQ(kindsOf(m_list.leave()), std::vector{Kind::MouseExit});
    EXPECT_TRUE(m_list.leave().isEmpty());
}

} // namespace varnhold
