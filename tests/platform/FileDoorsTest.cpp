#include "platform/ReadFile.h"
#include "platform/ReplaceFile.h"

#include "support/ErrorNumber.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <memory>
#include <sys/stat.h>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;
using Links = FileReplacement::Links;

class FileDoors : public testing::Test
{
protected:
    FileDoors()
    {
        root.write(u"file"_s, "0123456789");
        root.makeFolder(u"folder"_s);
        root.makePipe(u"pipe"_s);
        QFile::link(u"file"_s, root.path(u"link"_s));
        QFile::link(u"link"_s, root.path(u"chain"_s));
        QFile::link(u"new"_s, root.path(u"dangling"_s));
        QFile::link(u"pipe"_s, root.path(u"link to pipe"_s));
        QFile::link(u"round"_s, root.path(u"round"_s));
    }

    [[nodiscard]] QStringList leftovers() const
    {
        return QDir(root.path({})).entryList({u".varnhold-*"_s}, QDir::Files | QDir::Hidden);
    }

    test::TempRoot root;
};

TEST_F(FileDoors, OnlyRegularFilesAreRead)
{
    constexpr std::int64_t limit = 10;
    root.write(u"large"_s, "0123456789+");
    const struct
    {
        QString path;
        int error;
    } cases[] = {
        {root.path(u"file"_s), errors::none},
        {root.path(u"chain"_s), errors::none},
        {root.path(u"large"_s), errors::outOfMemory},
        {root.path(u"folder"_s), errors::pathFileAccess},
        {root.path(u"pipe"_s), errors::pathFileAccess},
        {root.path(u"link to pipe"_s), errors::pathFileAccess},
        {root.path(u"round"_s), errors::pathFileAccess},
        {u"/dev/zero"_s, errors::pathFileAccess},
        {u"/proc/self/maps"_s, errors::outOfMemory}, // told to be empty
        {root.path(u"gone"_s), errors::fileNotFound},
        {root.path(u"dangling"_s), errors::fileNotFound},
        {root.path(u"gone/file"_s), errors::pathNotFound},
        {root.path(u"file/file"_s), errors::pathNotFound},
        {root.path(u"a\0b"_s), errors::badFileName},
        {QString(300, u'x'), errors::badFileName},
        {QString(), errors::fileNotFound},
    };
    for (const auto& c : cases) {
        QByteArray bytes;
        EXPECT_EQ(test::errorNumberOf([&] { bytes = readFile(c.path, limit); }), c.error)
            << qPrintable(c.path);
        EXPECT_EQ(bytes, c.error == errors::none ? "0123456789" : "") << qPrintable(c.path);
        EXPECT_EQ(tryReadFile(c.path, limit).isRead, c.error == errors::none) << qPrintable(c.path);
    }
    EXPECT_TRUE(isRegularFile(root.path(u"chain"_s)));
    EXPECT_FALSE(isRegularFile(root.path(u"link to pipe"_s)));
}

TEST_F(FileDoors, ReplacesWhatMayBeReplaced)
{
    root.write(u"protected"_s, "0123456789");
    QFile::setPermissions(root.path(u"protected"_s), QFile::ReadOwner | QFile::ReadGroup);
    const struct
    {
        QString name;
        Links links;
        int error;
        QString changed; ///< the file that then holds the new bytes
    } cases[] = {
        {u"file"_s, Links::Follow, errors::none, u"file"_s},
        {u"chain"_s, Links::Follow, errors::none, u"file"_s},
        {u"dangling"_s, Links::Follow, errors::none, u"new"_s},
        {u"link"_s, Links::Replace, errors::none, u"link"_s},
        {u"link to pipe"_s, Links::Replace, errors::none, u"link to pipe"_s},
        {u"fresh"_s, Links::Replace, errors::none, u"fresh"_s},
        {u"pipe"_s, Links::Follow, errors::pathFileAccess, {}},
        {u"round"_s, Links::Follow, errors::pathFileAccess, {}},
        {u"folder"_s, Links::Replace, errors::pathFileAccess, {}},
        {u"folder/"_s, Links::Follow, errors::badFileName, {}},
        {u"protected"_s, Links::Follow, errors::pathFileAccess, {}},
        {u"gone/file"_s, Links::Follow, errors::pathNotFound, {}},
        {QString(300, u'x'), Links::Follow, errors::badFileName, {}},
    };
    for (const auto& c : cases) {
        root.write(u"file"_s, "0123456789");
        const QByteArray bytes = c.name.toUtf8();
        EXPECT_EQ(test::errorNumberOf([&] { replaceFile(root.path(c.name), bytes, c.links); }), c.error)
            << qPrintable(c.name);
        if (c.changed.isEmpty()) {
            EXPECT_EQ(root.read(u"file"_s), "0123456789") << qPrintable(c.name);
        } else {
            EXPECT_EQ(root.read(c.changed), bytes) << qPrintable(c.name);
        }
        EXPECT_EQ(QFileInfo(root.path(c.name)).isSymLink(),
                  c.links == Links::Follow &&
                      (c.name == u"chain" || c.name == u"dangling" || c.name == u"round"))
            << qPrintable(c.name);
    }
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(FileDoors, KeepsTheModeAndTheOldFileUntilTheEnd)
{
    const QByteArray name = QFile::encodeName(root.path(u"file"_s));
    ::chmod(name.constData(), 0640);
    {
        FileReplacement dropped(root.path(u"file"_s));
        dropped.write("half");
        EXPECT_EQ(root.read(u"file"_s), "0123456789");
        EXPECT_EQ(leftovers().size(), 1);
    }
    EXPECT_EQ(leftovers(), QStringList());
    replaceFile(root.path(u"file"_s), "new");
    struct stat status = {};
    ::stat(name.constData(), &status);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_F(FileDoors, ClearsWhatAKillLeftAndNothingElse)
{
    const QStringList others = {u"Settings.ini.backup"_s, u".varnhold-notes"_s, u".varnhold-123"_s,
                                u"x.varnhold-0123456789012345"_s};
    for (const QString& other : others)
        root.write(other, "mine");
    root.makeFolder(u".varnhold-0123456789012340"_s);
    QFile::link(u"file"_s, root.path(u".varnhold-0123456789012341"_s));
    root.makePipe(u".varnhold-0123456789012342"_s);
    root.write(u".varnhold-0123456789012345"_s, "half");
    FileReplacement working(root.path(u"file"_s));
    working.write("new");

    clearLeftovers(root.path({}));
    clearLeftovers(root.path(u"gone"_s));
    EXPECT_FALSE(QFileInfo::exists(root.path(u".varnhold-0123456789012345"_s)));
    EXPECT_TRUE(QFileInfo(root.path(u".varnhold-0123456789012340"_s)).isDir());
    EXPECT_TRUE(QFileInfo(root.path(u".varnhold-0123456789012341"_s)).isSymLink());
    EXPECT_TRUE(QFileInfo::exists(root.path(u".varnhold-0123456789012342"_s)));
    for (const QString& other : others)
        EXPECT_TRUE(QFileInfo::exists(root.path(other))) << qPrintable(other);
    working.commit();
    EXPECT_EQ(root.read(u"file"_s), "new") << "another's work in progress is left alone";
}

} // namespace
} // namespace varnhold
