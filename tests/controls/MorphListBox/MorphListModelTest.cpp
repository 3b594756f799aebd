#include "controls/MorphListBox/MorphListModel.h"
#include "controls/MorphListBox/MorphListCompare.h"
#include "controls/MorphListBox/PlainList.h"

#include <gtest/gtest.h>

#include <random>

namespace varnhold {

namespace {

using namespace Qt::StringLiterals;

/// Ten rows fit.
void sizeForTenRows(MorphListModel& list)
{
    MorphListMeasure measure;
    measure.ScaleWidth = 113;
    measure.ScaleHeight = 10 + 10 * 12;
    measure.fontHeight = 12;
    list.setMeasure(measure);
}

QStringList textsOf(MorphListModel& list)
{
    QStringList texts;
    for (int i = 0; i < list.count(); ++i)
        texts.append(list.text(i));
    return texts;
}

void fill(MorphListModel& list, const QStringList& texts)
{
    for (const QString& text : texts)
        list.AddItem(text);
}

} // namespace

// Orders of plain texts and whole numbers, and what moves with an item, are shown by the random sequences
// below.
TEST(MorphListModel, SortsNumeralsByWhatStandsInFront)
{
    MorphListModel list;
    list.setSortAsNumeric(true);
    fill(list, {u"10"_s, u"9"_s, u"-1.5"_s, u"x"_s});
    EXPECT_EQ(list.newIndex(), 1);
    EXPECT_EQ(textsOf(list), QStringList({u"-1.5"_s, u"x"_s, u"9"_s, u"10"_s}));
    EXPECT_EQ(leadingNumber(u"  -12.5e1x"_s), -125);
    EXPECT_EQ(leadingNumber(u"+3"_s), 3);
    EXPECT_EQ(leadingNumber(u"x3"_s), 0);
}

TEST(MorphListModel, SortingDropsTheFocusAndKeepsChecks)
{
    MorphListModel list;
    list.setMultiSelect(SelectMode::Extended);
    fill(list, {u"b"_s, u"a"_s, u"c"_s});
    list.setSelected(2, true);
    list.Sort(false);
    EXPECT_EQ(list.focusRow(), 0);
    list.setCheckList(true);
    list.setSelected(2, true);
    list.Sort(true);
    EXPECT_TRUE(list.selected(0)) << "a check stays with its item";
}

TEST(MorphListModel, TheKeyboardRowGoesUpWithTheLastRow)
{
    MorphListModel list;
    sizeForTenRows(list);
    fill(list, {u"a"_s, u"b"_s, u"c"_s});
    static_cast<void>(list.keyDown(35, 0));
    EXPECT_EQ(list.focusRow(), 2);
    list.RemoveItem(2);
    EXPECT_EQ(list.focusRow(), 1);
    static_cast<void>(list.keyDown(38, 0));
    EXPECT_EQ(list.listIndex(), 0);
}

TEST(MorphListModel, FindsWholeTextsOnly)
{
    MorphListModel list;
    EXPECT_EQ(list.FindIndex(u"a"_s, false), -1);
    fill(list, {u"Äpfel"_s, u"apples"_s});
    EXPECT_EQ(list.text(list.FindIndex(u"äPFEL"_s, false)), u"Äpfel"_s);
    EXPECT_EQ(list.FindIndex(u"apple"_s, false), -1);
    EXPECT_EQ(list.FindIndex(u"Apples"_s, true), -1);
    // A list that is set sorted too late has no order to search by; its texts are found all the same.
    list.Clear();
    list.setSorted(false);
    fill(list, {u"z"_s, u"m"_s, u"a"_s, u"q"_s});
    list.setSorted(true);
    EXPECT_EQ(list.FindIndex(u"Q"_s, false), 3);
}

TEST(MorphListModel, DoesNothingWhileDisabled)
{
    MorphListModel list;
    sizeForTenRows(list);
    fill(list, {u"a"_s, u"b"_s});
    list.setListIndex(1);
    list.setEnabled(false);
    list.AddItem(u"c"_s);
    list.RemoveItem(0);
    list.Clear();
    list.Sort(true);
    list.setListIndex(0);
    EXPECT_EQ(textsOf(list), QStringList({u"a"_s, u"b"_s}));
    EXPECT_EQ(list.listIndex(), 1);
    EXPECT_EQ(list.FindIndex(u"a"_s, false), -1);
    EXPECT_EQ(list.MouseOverIndex(6), -1);
    EXPECT_TRUE(list.press(mousebutton::left, 0, {5, 6}, 0).isEmpty());
    EXPECT_TRUE(list.keyDown(40, 0).isEmpty());
}

TEST(MorphListModel, IgnoresIndexesOutOfRange)
{
    MorphListModel list;
    sizeForTenRows(list);
    fill(list, {u"a"_s});
    for (const int index : {-2, -1, 1, 1'000'000, std::numeric_limits<int>::max()}) {
        list.RemoveItem(index);
        list.setText(index, u"x"_s);
        list.setImageIndex(index, 1);
        list.setSelected(index, true);
        list.DisplayFrom(index);
        EXPECT_EQ(list.text(index), QString());
        EXPECT_EQ(list.imageIndex(index), -1);
        EXPECT_FALSE(list.selected(index));
    }
    list.AddItem(u"b"_s, 2);
    list.AddItem(u"b"_s, -1);
    list.setListIndex(1);
    EXPECT_EQ(textsOf(list), QStringList({u"a"_s}));
    EXPECT_EQ(list.listIndex(), -1);
}

TEST(MorphListModel, ClearsOrSelects)
{
    MorphListModel list;
    fill(list, {u"a"_s, u"b"_s, u"c"_s});
    list.setListIndex(1);
    list.ClearOrSelect();
    EXPECT_EQ(list.listIndex(), -1);
    list.setMultiSelect(SelectMode::Simple);
    list.ClearOrSelect();
    EXPECT_EQ(list.selectedCount(), 3);
    list.setSelected(0, false);
    list.ClearOrSelect();
    EXPECT_EQ(list.selectedCount(), 0);
}

TEST(MorphListModel, ClearedItShowsNothing)
{
    MorphListModel list;
    sizeForTenRows(list);
    fill(list, QStringList(30, u"x"_s));
    list.DisplayFrom(7);
    list.Clear();
    EXPECT_EQ(list.topIndex(), 0);
    EXPECT_EQ(list.lastVisible(), -1);
}

TEST(MorphListCompare, LowersLikeTheWholeText)
{
    const QString texts[] = {
        u"abc"_s, u"ABD"_s, u"äb"_s, u"Äc"_s, u"a"_s, u""_s, u"é"_s, u"E"_s, u"\u212A"_s /* Kelvin */,
        u"k"_s,   u"aÄ"_s,  u"AäB"_s};
    for (const QString& left : texts) {
        for (const QString& right : texts) {
            const int whole = QString::compare(left.toLower(), right.toLower());
            const int ours = compareLowered(left, right);
            EXPECT_EQ(ours < 0, whole < 0) << qPrintable(left) << " " << qPrintable(right);
            EXPECT_EQ(ours > 0, whole > 0) << qPrintable(left) << " " << qPrintable(right);
        }
    }
}

class RandomSequences : public testing::TestWithParam<unsigned>
{
protected:
    void compareAll(const std::string& step)
    {
        ASSERT_EQ(m_list.count(), m_plain.count()) << step;
        ASSERT_EQ(m_list.listIndex(), m_plain.current()) << step;
        ASSERT_EQ(m_list.topIndex(), m_plain.first) << step;
        ASSERT_EQ(m_list.lastVisible(), std::min(m_plain.first + m_plain.rows, m_plain.count()) - 1) << step;
        int selected = 0;
        for (int i = 0; i < m_plain.count(); ++i) {
            const test::PlainList::Item& item = m_plain.items[size_t(i)];
            ASSERT_EQ(m_list.text(i), item.text) << step << " row " << i;
            ASSERT_EQ(m_list.itemData(i), item.data) << step << " row " << i;
            ASSERT_EQ(m_list.imageIndex(i), item.image) << step << " row " << i;
            ASSERT_EQ(m_list.selected(i), m_plain.selected(i)) << step << " row " << i;
            selected += int(m_plain.selected(i));
        }
        ASSERT_EQ(m_list.selectedCount(), selected) << step;
    }

    int pick(int below) { return int(m_random() % unsigned(std::max(1, below))); }

    void addSorted()
    {
        // Several in a row, so that they meet in the queue.
        for (int i = 1 + pick(4); i > 0; --i) {
            const QString text = QString::number(pick(60)) + (pick(3) == 0 ? u""_s : u"a"_s);
            const QString cased = pick(2) == 0 ? text : text.toUpper();
            const QString added = m_plain.numeric ? QString::number(pick(60)) : cased;
            const std::optional<int> slot = m_plain.slotFor(added);
            if (!slot)
                return;
            m_list.setSorted(true);
            m_list.AddItem(added);
            m_plain.insert(*slot, added);
        }
        ASSERT_EQ(m_list.newIndex(), m_plain.newIndex);
    }

    void step(int kind)
    {
        const bool any = m_plain.count() > 0;
        const int row = pick(m_plain.count());
        switch (any || kind < 5 ? kind : 13) {
        case 0: {
            const int index = pick(m_plain.count() + 1);
            const QString text = QString::number(pick(60));
            m_list.AddItem(text, index);
            m_plain.insert(index, text);
            break;
        }
        case 1:
            m_list.setSorted(false);
            m_list.AddItem(u"7"_s);
            m_plain.insert(m_plain.count(), u"7"_s);
            break;
        case 2:
            m_list.Sort(row % 2 == 0);
            m_plain.sort(row % 2 == 0);
            break;
        case 3:
            m_list.ReverseStringArray();
            std::reverse(m_plain.items.begin(), m_plain.items.end());
            break;
        case 4:
            m_list.DisplayFrom(row);
            if (m_plain.count() > m_plain.rows)
                m_plain.scrollTo(row);
            break;
        case 5:
        case 6:
            m_list.RemoveItem(row);
            m_plain.remove(row);
            break;
        case 7:
            m_list.setListIndex(row);
            m_plain.currentId = m_plain.items[size_t(row)].id;
            m_plain.show(row);
            break;
        case 8:
            m_list.setItemData(row, row);
            m_list.setImageIndex(row, row % 5);
            m_plain.items[size_t(row)].data = row;
            m_plain.items[size_t(row)].image = row % 5;
            break;
        case 9:
            if (m_plain.multi) {
                m_list.setSelected(row, true);
                m_plain.items[size_t(row)].flag = true;
            }
            break;
        case 10: {
            const QString text = m_plain.items[size_t(row)].text.toUpper();
            m_list.setSorted(true);
            ASSERT_EQ(m_list.FindIndex(text, false) >= 0, m_plain.find(text, false) >= 0);
            m_list.setSorted(false);
            ASSERT_EQ(m_list.FindIndex(text, true), m_plain.find(text, true));
            break;
        }
        default:
            addSorted();
            break;
        }
    }

    std::mt19937 m_random{GetParam()};
    MorphListModel m_list;
    test::PlainList m_plain;
};

TEST_P(RandomSequences, LeaveWhatThePlainListLeaves)
{
    sizeForTenRows(m_list);
    m_plain.multi = GetParam() % 2 == 0;
    m_plain.numeric = GetParam() % 3 == 0;
    m_list.setMultiSelect(m_plain.multi ? SelectMode::Extended : SelectMode::Single);
    m_list.setSortAsNumeric(m_plain.numeric);
    for (int i = 0; i < 700; ++i) {
        const int kind = pick(14);
        step(kind);
        compareAll("step " + std::to_string(i) + " of kind " + std::to_string(kind));
        if (HasFatalFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSequences, testing::Range(1U, 9U));

} // namespace varnhold
