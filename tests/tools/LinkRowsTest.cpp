#include "tools/LinkRows.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

LinkRow link(const QString& id, const QString& name, const QString& size = {}, const QString& url = {})
{
    return {{id, name, u"01.01"_s, u"03.00"_s, size, u"ab"_s, url}};
}

QString ids(const LinkRows& rows)
{
    QStringList shown;
    for (int row = 0; row < rows.count(); ++row)
        shown += rows.row(row)[LinkRow::GameId];
    return shown.join(u' ');
}

} // namespace

TEST(LinkRows, SortAsTextKeepTheOrderOfEqualsAndReverse)
{
    LinkRows rows;
    rows.setRows({link(u"C"_s, u"beta"_s, u"9 kB"_s), link(u"A"_s, u"Alpha"_s, u"10 kB"_s),
                  link(u"B"_s, u"BETA"_s, u"1,023.50 kB"_s), link(u"D"_s, {}, {})});
    const QPersistentModelIndex held(rows.index(1, LinkRow::Name));
    EXPECT_EQ(ids(rows), u"C A B D"_s);
    rows.clickColumn(LinkRow::Name);
    EXPECT_EQ(ids(rows), u"D A C B"_s);
    rows.clickColumn(LinkRow::Name);
    EXPECT_EQ(ids(rows), u"B C A D"_s);
    EXPECT_EQ(held.row(), 2);
    EXPECT_EQ(held.data().toString(), u"Alpha"_s);
    rows.clickColumn(LinkRow::Size);
    EXPECT_EQ(ids(rows), u"D B A C"_s);

    rows.removeRow(1);
    EXPECT_EQ(ids(rows), u"D A C"_s);
    rows.setRows({link(u"Y"_s, {}, u"2"_s), link(u"X"_s, {}, u"1"_s)});
    EXPECT_EQ(ids(rows), u"X Y"_s) << "a sort stays on";
}

TEST(LinkRows, CopyAndTellRowsAsTheyStand)
{
    const LinkRow full = link(u"BLUS1"_s, u"<b>"_s, u"5"_s, u"http://h"_s);
    EXPECT_EQ(linkRowText(full), u"<b>\r\n01.01\r\n03.00\r5\r\nab\r\nhttp://h"_s);
    EXPECT_EQ(linkRowText({}), u"\r\n\r\n\r\r\n\r\n"_s);
    EXPECT_EQ(linkTip(full), u"Game ID:                BLUS1\r\nPackage Version:   01.01\r\n"
                             "§ystem Version:     03.00\r\n§ize:                       5\r\n"
                             "Url:                         http://h"_s);
}

} // namespace varnhold::test
