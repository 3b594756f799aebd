#include "lookup/UpdateList.h"

#include "lookup/UpdateListTip.h"
#include "support/ErrorNumber.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(UpdateList, KnowsItsRowsFromOne)
{
    UpdateList list;
    list.addRow(u"01.00"_s);
    list.setSubItem(1, UpdateList::Url, u"u"_s);
    EXPECT_FALSE(list.hasSubItem(1, UpdateList::Size)) << "a later one may be set first";
    EXPECT_EQ(list.subItem(1, UpdateList::Size), u""_s);
    list.setBytes(1, u"2048"_s);
    EXPECT_EQ(list.subItem(1, UpdateList::Size), u"2.00 kB (2048 bytes)"_s);
    EXPECT_EQ(errorNumberOf([&] { list.setBytes(2, u"many"_s); }), 13) << "told before the row is";
    list.setSubItem(1, UpdateList::Size, {});
    for (const int row : {0, 2, -1})
        EXPECT_EQ(errorNumberOf([&] { list.setSubItem(row, UpdateList::Url, {}); }), 35600);
    EXPECT_EQ(list.findUrl(u"u"_s), 1);
    EXPECT_EQ(list.findUrl(u"U"_s), 0);
    EXPECT_EQ(updateListTip(list, 1),
              u"Package Version:  01.00\r\n§ystem Version:    \r\n§ize:                      "
              u"\r\nUrl:                        u"_s);
}

TEST(UpdateList, ShowsCheckBoxesOnlyWhenAsked)
{
    UpdateList list;
    list.addRow(u"1"_s);
    const QModelIndex cell = list.index(0, 0);
    EXPECT_FALSE(cell.data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(list.setData(cell, Qt::Checked, Qt::CheckStateRole));
    list.setCheckBoxes(true);
    EXPECT_TRUE(list.setData(cell, Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(list.isChecked(1));
    EXPECT_TRUE(cell.flags().testFlag(Qt::ItemIsUserCheckable));
    EXPECT_EQ(list.headerData(4, Qt::Horizontal, Qt::DisplayRole), u"Url"_s);
}

TEST(UpdateList, TellsViewsOfAFillOnce)
{
    UpdateList list;
    int resets = 0;
    int others = 0;
    QObject::connect(&list, &UpdateList::modelReset, &list, [&] { ++resets; });
    QObject::connect(&list, &UpdateList::rowsInserted, &list, [&] { ++others; });
    QObject::connect(&list, &UpdateList::dataChanged, &list, [&] { ++others; });
    list.beginFill();
    list.clear();
    list.addRow(u"1"_s);
    list.setIcon(1, u"plus"_s);
    list.endFill();
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(others, 0);
    list.addRow(u"2"_s);
    list.setIcon(2, u"plus"_s);
    EXPECT_EQ(others, 2);
}

} // namespace varnhold::test
