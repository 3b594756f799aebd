#include "lookup/MarkRows.h"

#include "LookupWorld.h"

#include <gtest/gtest.h>

#include <QFile>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class MarkRowsTest : public testing::Test, protected LookupWorld
{
protected:
    MarkRowsTest()
    {
        setCheck(Check::UseDLD, true);
        values().saveDir.tag = root.path(u"dl"_s);
        root.makeFolder(u"dl"_s);
    }

    void add(const QString& url, const QString& size = {})
    {
        list.addRow(u"1"_s);
        list.setSubItem(list.count(), UpdateList::Size, size);
        list.setSubItem(list.count(), UpdateList::Url, url);
    }
    void touch(const QString& name, qint64 size = 0)
    {
        QFile sized(root.write(u"dl/"_s + name, {}));
        ASSERT_TRUE(sized.resize(size));
    }
    QString mark()
    {
        Mark_Rows(list, settings, state, u"BLUS30443"_s, u"Game"_s);
        return icons();
    }
};

} // namespace

TEST_F(MarkRowsTest, TellsEveryStateOfTheFiles)
{
    for (const char* name : {"full", "wrong", "small", "part", "mark", "bare", "none", "huge"})
        add(u"http://h/%1.pkg"_s.arg(QLatin1StringView(name)), u"1.00 MB (1048576 bytes)"_s);
    list.setSubItem(3, UpdateList::Size, u"500.00 kB (512000 bytes)"_s);
    list.setSubItem(8, UpdateList::Size, u"1,000.00 MB (1048576000 bytes)"_s);
    add(u"http://h/full.pkg"_s, u"1.00 MB (1048576 bytes)"_s);
    touch(u"full.txt"_s);
    touch(u"full.pkg"_s, 1048576);
    touch(u"wrong.txt"_s);
    touch(u"wrong.pkg"_s, 1048577);
    touch(u"small.txt"_s);
    touch(u"small.pkg"_s, 512000);
    touch(u"part.txt"_s);
    touch(u"part.temp"_s, 5);
    touch(u"mark.txt"_s);
    touch(u"bare.pkg"_s);
    touch(u"huge.txt"_s);
    touch(u"huge.pkg"_s, 1048576000);
    EXPECT_EQ(mark(), u"pkg-plus pkg-red pkg-red pkg-red plus pkg pkg pkg-red pkg-plus"_s);
    EXPECT_EQ(state.IniValue, u"http://h/full.pkg"_s);

    // What is gone from the disk keeps its icon.
    QFile::remove(root.path(u"dl/mark.txt"_s));
    EXPECT_EQ(mark(), u"pkg-plus pkg-red pkg-red pkg-red plus pkg pkg pkg-red pkg-plus"_s);
}

TEST_F(MarkRowsTest, NamesWithoutTheExtensionStandForAllThree)
{
    add(u"http://h/a.PKG"_s);
    add(u"http://h/a.pkg.b.pkg"_s);
    add({});
    touch(u"a.PKG"_s);
    touch(u"a.txt.b.txt"_s);
    EXPECT_EQ(mark(), u"pkg-red plus pkg"_s);
}

TEST_F(MarkRowsTest, LooksInTheFolderOfTheOptions)
{
    add(u"http://h/a.pkg"_s);
    touch(u"a.txt"_s);
    setCheck(Check::CGNFolder, true);
    EXPECT_EQ(titleFolder(settings, u"BLUS30443"_s, u"Game"_s), root.path(u"dl/BLUS30443-[Game]"_s));
    EXPECT_EQ(mark(), u"pkg"_s) << "the title's folder is not there";
    touch(u"BLUS30443-[Game]/a.txt"_s);
    EXPECT_EQ(mark(), u"plus"_s);
    setCheck(Check::UseDLD, false);
    EXPECT_EQ(titleFolder(settings, u"BLUS30443"_s, u"Game"_s), u""_s);
}

} // namespace varnhold::test
