#include "tools/ReportText.h"
#include "lookup/UpdateList.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

/// Titles and rows in plain words: line by line, as one would write it down by hand.
QString expected(int boxes, const QString& title, const QList<QStringList>& rows)
{
    const auto on = [boxes](int box) { return (boxes & (1 << box)) != 0; };
    QStringList lines;
    if (on(0))
        lines << title;
    for (const QStringList& row : rows) {
        const QStringList labels{u"Pkg:"_s, u"Sys:"_s, u"Size:"_s, u"Sha1:"_s, u"Link:"_s};
        for (int i = 0; i < 5; ++i) {
            if (on(i + 1))
                lines << (on(6) ? labels[i] + u'\t' : QString()) + row[i];
        }
    }
    return lines.join(u"\r\n"_s);
}

} // namespace

TEST(ReportText, HasTheLinesThatAreOnInEachCombination)
{
    TempRoot root;
    ApplicationState state;
    SettingsFile file(root.paths(), state);
    Settings settings(file);
    UpdateList list;
    const QList<QStringList> rows{{u"01.02"_s, u"03.4100"_s, u"3.81 MB"_s, u"ab"_s, u"http://h/a.pkg"_s},
                                  {u"01.03"_s, {}, {}, u"<b>"_s, {}}};
    for (const QStringList& row : rows) {
        list.addRow(row[0]);
        for (int i = 1; i <= 4; ++i) {
            if (!row[i].isEmpty())
                list.setSubItem(list.count(), static_cast<UpdateList::SubItem>(i), row[i]);
        }
    }
    const QStringList sample{u"01.01"_s, u"03.4100"_s, u"1.72 MB (1805056 bytes)"_s,
                             u"000a000000a00a0aaa0000000aaaa0"_s, u"http://LINK.TO.PKG"_s};
    for (int boxes = 0; boxes < 128; ++boxes) {
        for (int i = 0; i < 7; ++i) {
            const auto check = static_cast<std::size_t>(Check::ListText0) + static_cast<std::size_t>(i);
            settings.unwrittenValues().checks.at(check) = (boxes & (1 << i)) != 0;
        }
        const ReportLines lines(settings);
        EXPECT_EQ(reportSample(lines), expected(boxes, u"BCUS10001-[Example Game]"_s, {sample})) << boxes;
        QString report = expected(boxes, u"BLUS30443-[Ashgrove]"_s, rows);
        if ((boxes & 63) != 0)
            report += u"\r\n"_s;
        EXPECT_EQ(reportText(lines, u"BLUS30443"_s, u"Ashgrove"_s, list), report) << boxes;
    }
}

} // namespace varnhold::test
