#include "platform/Files.h"

#include "platform/FileErrors.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QFile>

#include <cerrno>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

TEST(Files, FileAndFolderAreToldApart)
{
    const test::TempRoot root;
    root.write(u"holds/a file.pkg"_s, "x");
    root.write(u"dotted/.hidden"_s, "");
    root.makeFolder(u"empty"_s);
    root.makeFolder(u"nested/inner"_s);
    QFile::link(root.path(u"holds/a file.pkg"_s), root.path(u"link"_s));
    QFile::link(root.path(u"gone"_s), root.path(u"dangling"_s));
    const struct
    {
        QString name;
        bool file;
        bool folder;
    } cases[] = {
        {u"holds/a file.pkg"_s, true, false},
        {u"holds/*.pkg"_s, false, false},
        {u"holds/A file.pkg"_s, false, false},
        {u"holds"_s, false, true},
        {u"holds/"_s, true, true},
        {u"dotted/"_s, true, true},
        {u"empty/"_s, false, true},
        {u"nested/"_s, false, true},
        {u"link"_s, true, false},
        {u"dangling"_s, false, false},
        {u"holds/a file.pkg/"_s, false, false},
        {u"gone/x"_s, false, false},
        {u"a\0b"_s, false, false},
        {QString(300, u'x'), false, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FileExists(root.path(c.name)), c.file) << qPrintable(c.name);
        EXPECT_EQ(FolderExists(root.path(c.name)), c.folder) << qPrintable(c.name);
    }
    EXPECT_FALSE(FileExists({}));
    EXPECT_FALSE(FolderExists({}));
    EXPECT_FALSE(FileExists(u":/qt-project.org"_s)) << "a name of the disk, not of the program's resources";
}

TEST(Files, MakeFolderMakesOneLevel)
{
    const test::TempRoot root;
    MakeFolder(root.path(u"new"_s));
    EXPECT_TRUE(FolderExists(root.path(u"new"_s)));
    EXPECT_NO_THROW(MakeFolder(root.path(u"new"_s)));
    EXPECT_NO_THROW(MakeFolder(root.path(u"new/"_s)));

    root.write(u"file"_s, "x");
    const struct
    {
        QString path;
        int error;
    } cases[] = {
        {root.path(u"gone/new"_s), errors::pathNotFound},
        {root.path(u"file/new"_s), errors::pathNotFound},
        {root.path(u"file"_s), errors::pathFileAccess},
        {root.path(QString(300, u'x')), errors::badFileName},
        {root.path(u"a\0b"_s), errors::badFileName},
        {QString(), errors::pathNotFound},
    };
    for (const auto& c : cases) {
        try {
            MakeFolder(c.path);
            ADD_FAILURE() << qPrintable(c.path);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), c.error) << qPrintable(c.path);
        }
    }
}

TEST(Files, SystemErrorsHaveNumbers)
{
    EXPECT_EQ(errorFromErrno(ENOENT).number(), errors::pathNotFound);
    EXPECT_EQ(errorFromErrno(ENOENT, errors::fileNotFound).number(), errors::fileNotFound);
    EXPECT_EQ(errorFromErrno(ENOSPC).number(), errors::diskFull);
    EXPECT_EQ(errorFromErrno(EACCES).number(), errors::pathFileAccess);
    EXPECT_EQ(errorFromErrno(ENOSPC).description(), u"Disk full"_s);
}

} // namespace
} // namespace varnhold
