#include "platform/DesktopTrash.h"
#include "platform/RecycleFile.h"
#include "support/ErrorNumber.h"
#include "support/FakeTrash.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(RecycleFileTest, FindsTheExactNameFirstAndNoLink)
{
    TempRoot root;
    for (const char* name : {"d/Both.pkg", "d/both.pkg", "d/Other.PKG", "d/target"})
        root.write(QString::fromLatin1(name), "x");
    QFile::link(root.path(u"d/target"_s), root.path(u"d/link.pkg"_s));
    root.write(u"d/LINK.pkg"_s, "x");

    struct Case
    {
        QString name;
        QString moved; ///< empty: error 52
    };
    const Case cases[] = {
        {u"both.pkg"_s, u"both.pkg"_s},
        {u"other.pkg"_s, u"Other.PKG"_s},
        {u"link.pkg"_s, {}},
        {u"none.pkg"_s, {}},
        {u""_s, {}},
        {u".."_s, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(qPrintable(c.name));
        FakeTrash trash;
        const int error = errorNumberOf([&] { RecycleFile(trash, root.path(u"d/"_s + c.name)); });
        EXPECT_EQ(error, c.moved.isEmpty() ? 52 : 0);
        EXPECT_EQ(trash.moved.join(u' '), c.moved.isEmpty() ? QString() : root.path(u"d/"_s + c.moved));
    }
}

/// The trash of a data home of the test's own.
class DesktopTrashTest : public testing::Test
{
protected:
    DesktopTrashTest()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(root.path(u"data"_s)));
        qputenv("HOME", QFile::encodeName(root.path(u"."_s)));
        QDir::setCurrent(root.path(u"."_s));
    }
    ~DesktopTrashTest() override
    {
        QDir::setCurrent(m_folder);
        qputenv("HOME", m_home);
        qunsetenv("XDG_DATA_HOME");
    }
    QStringList trashed(const QString& part) const
    {
        return QDir(root.path(u"data/Trash/"_s + part)).entryList(QDir::Files | QDir::NoDotAndDotDot);
    }

    TempRoot root;
    QByteArray m_home = qgetenv("HOME");
    QString m_folder = QDir::currentPath();
};

TEST_F(DesktopTrashTest, KeepsWhatCanBeBroughtBack)
{
    for (int i = 0; i < 2; ++i) // the same name is there already the second time
        DesktopTrash().moveToTrash(root.write(u"a %b.pkg"_s, "bytes"));
    EXPECT_FALSE(QFile::exists(root.path(u"a %b.pkg"_s)));
    EXPECT_EQ(trashed(u"files"_s).size(), 2);
    ASSERT_EQ(trashed(u"info"_s).size(), 2);
    EXPECT_EQ(root.read(u"data/Trash/files/a %b.pkg"_s), "bytes");
    EXPECT_TRUE(root.read(u"data/Trash/info/a %b.pkg.trashinfo"_s).contains("/a%20%25b.pkg\nDeletionDate="));
    EXPECT_EQ(errorNumberOf([&] { DesktopTrash().moveToTrash(root.path(u"none"_s)); }), 53);
}

TEST_F(DesktopTrashTest, MovesNowhereElse)
{
    root.write(u"data"_s, "a file where the data home should be");
    const QString path = root.write(u"a.pkg"_s, "bytes");
    EXPECT_EQ(errorNumberOf([&] { DesktopTrash().moveToTrash(path); }), 75);
    EXPECT_EQ(root.read(u"a.pkg"_s), "bytes");
    EXPECT_FALSE(QDir(root.path(u"files"_s)).exists());
}

} // namespace varnhold::test
