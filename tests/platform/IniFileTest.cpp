#include "platform/IniFile.h"

#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

const QString name = u"Test.ini"_s;

class IniFileTest : public testing::Test
{
protected:
    QString read(const QByteArray& bytes, const QString& section, const QString& key, int bufferSize = 255)
    {
        root.write(name, bytes);
        return ini.read(section, key, u"(none)"_s, bufferSize);
    }
    QByteArray written(const QByteArray& before, const QString& key, const QString& value)
    {
        root.write(name, before);
        ini.write(u"S"_s, key, value);
        return root.read(name);
    }

    test::TempRoot root;
    IniFile ini{root.path(name)};
};

TEST_F(IniFileTest, Reads)
{
    const struct
    {
        const char* label;
        QByteArray bytes;
        QString value; ///< of key "k" in section "s"
    } cases[] = {
        {"plain", "[s]\r\nk=v\r\n", u"v"_s},
        {"no line end at the end", "[s]\nk=v", u"v"_s},
        {"case", "[S]\r\nK=v\r\n", u"v"_s},
        {"first of two keys", "[s]\r\nk=1\r\nK=2\r\n", u"1"_s},
        {"first of two sections", "[s]\r\nx=1\r\n[s]\r\nk=2\r\n", u"(none)"_s},
        {"other section's key", "[t]\r\nk=1\r\n[s]\r\n[u]\r\nk=2\r\n", u"(none)"_s},
        {"key before any section", "k=1\r\n[s]\r\n", u"(none)"_s},
        {"blanks", "  [ s ]  \r\n\t k\t=  a b \t\r\n", u"a b"_s},
        {"non-breaking blank stays", "[s]\r\nk=\xA0v\xA0\r\n", u"\u00A0v\u00A0"_s},
        {"empty value", "[s]\r\nk=\r\n", u""_s},
        {"quotes", "[s]\r\nk=\" a \"\r\n", u" a "_s},
        {"single quotes", "[s]\r\nk=' a '\r\n", u" a "_s},
        {"one pair only", "[s]\r\nk=\"\"a\"\"\r\n", u"\"a\""_s},
        {"unlike quotes", "[s]\r\nk=\"a'\r\n", u"\"a'"_s},
        {"lone quote", "[s]\r\nk=\"\r\n", u"\""_s},
        {"equals in value", "[s]\r\nk=a=b;c\\n\r\n", u"a=b;c\\n"_s},
        {"comment", "[s]\r\n;k=1\r\nk=2\r\n", u"2"_s},
        {"line without equals", "[s]\r\nk\r\nk=2\r\n", u"2"_s},
        {"open head", "[s\r\nk=1\r\n", u"1"_s},
        {"text after head", "[s] ; note\r\nk=1\r\n", u"1"_s},
        {"code page", "[s]\r\nk=\x99\xA7\x80\r\n", u"\u2122\u00A7\u20AC"_s},
        {"marked UTF-8", "\xEF\xBB\xBF[s]\r\nk=\xE2\x84\xA2\xE4\xB8\xAD\r\n", u"\u2122\u4E2D"_s},
        {"half written", "[s]\r\nx=1\r\nk", u"(none)"_s},
        {"nothing", "", u"(none)"_s},
        {"NUL", QByteArray("[s]\r\nx=\0\r\nk=v\r\n", 16), u"v"_s},
        {"long line before", "[s]\r\nx=" + QByteArray(200'000, 'x') + "\r\nk=v\r\n", u"v"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(read(c.bytes, u"s"_s, u"k"_s), c.value) << c.label;
}

TEST_F(IniFileTest, CutsToTheBuffer)
{
    const QByteArray file = "[s]\r\nk=" + QByteArray(200'000, 'x') + "\r\n";
    EXPECT_EQ(read(file, u"s"_s, u"k"_s).size(), 254);
    EXPECT_EQ(read(file, u"s"_s, u"k"_s, 1500).size(), 1499);
    EXPECT_EQ(read("[s]\r\nk=\"abcdef\"\r\n", u"s"_s, u"k"_s, 5), u"abcd"_s) << "quotes do not count";
    EXPECT_EQ(read("\xEF\xBB\xBF[s]\r\nk=ab\xF0\x9F\x98\x80\r\n", u"s"_s, u"k"_s, 4), u"ab"_s)
        << "never half a character";
    EXPECT_EQ(read({}, u"s"_s, u"k"_s, 4), u"(no"_s) << "the default too";
}

TEST_F(IniFileTest, WritesKeepEveryOtherLine)
{
    const struct
    {
        const char* label;
        QByteArray before;
        QByteArray after; ///< when key "k" of section "S" became "v"
    } cases[] = {
        {"empty file", "", "[S]\r\nk=v\r\n"},
        {"replaced", "; note\r\n[S]\r\nK=1\r\nx= y \r\n", "; note\r\n[S]\r\nK=v\r\nx= y \r\n"},
        {"first of two", "[S]\nk=1\nk=2\n", "[S]\nk=v\nk=2\n"},
        {"added before the blank lines", "[S]\r\nx=1\r\n\r\n[T]\r\nk=1\r\n",
         "[S]\r\nx=1\r\nk=v\r\n\r\n[T]\r\nk=1\r\n"},
        {"section added", "[T]\r\nk=1\r\n", "[T]\r\nk=1\r\n[S]\r\nk=v\r\n"},
        {"line end added", "[s]\nx=1", "[s]\nx=1\nk=v\n"},
        {"line ends of a mixed file", "[S]\nx=1\r\n", "[S]\nx=1\r\nk=v\n"},
        {"half-written", "[S]\r\nx=1\r\n[", "[S]\r\nx=1\r\nk=v\r\n["},
        {"mark kept", "\xEF\xBB\xBF[S]\r\n", "\xEF\xBB\xBF[S]\r\nk=v\r\n"},
        {"bytes that are no text", "[S]\r\n\x81\xFF\r\n", "[S]\r\n\x81\xFF\r\nk=v\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(written(c.before, u"k"_s, u"v"_s), c.after) << c.label;
}

TEST_F(IniFileTest, ForeignTextTurnsTheFileIntoMarkedUtf8)
{
    EXPECT_EQ(written("; \xA7\r\n[S]\r\nk=\x99\r\n", u"p"_s, u"/\u4E2D"_s),
              "\xEF\xBB\xBF; \xC2\xA7\r\n[S]\r\nk=\xE2\x84\xA2\r\np=/\xE4\xB8\xAD\r\n");
    EXPECT_EQ(ini.read(u"S"_s, u"p"_s, {}, 255), u"/\u4E2D"_s);
    EXPECT_EQ(ini.read(u"S"_s, u"k"_s, {}, 255), u"\u2122"_s);
}

TEST_F(IniFileTest, DeletesASectionAndNothingElse)
{
    root.write(name, "a\r\n[T]\r\nk=1\r\n[s]\r\n;c\r\nk=2\r\n\r\n[U]\r\nk=3\r\n");
    ini.deleteSection(u"S"_s);
    EXPECT_EQ(root.read(name), "a\r\n[T]\r\nk=1\r\n[U]\r\nk=3\r\n");
    ini.deleteSection(u"S"_s);
    EXPECT_EQ(root.read(name), "a\r\n[T]\r\nk=1\r\n[U]\r\nk=3\r\n");
}

TEST_F(IniFileTest, KeepsTheFilesOwnRights)
{
    root.write(name, "[S]\r\nk=1\r\n");
    QFile::setPermissions(root.path(name), QFile::ReadOwner | QFile::ReadGroup);
    ini.write(u"S"_s, u"k"_s, u"2"_s);
    ini.deleteSection(u"S"_s);
    EXPECT_EQ(root.read(name), "[S]\r\nk=1\r\n") << "a read-only file stays";

    QFile::setPermissions(root.path(name), QFile::ReadOwner | QFile::WriteOwner);
    ini.write(u"S"_s, u"k"_s, u"2"_s);
    EXPECT_EQ(root.read(name), "[S]\r\nk=2\r\n");
    EXPECT_EQ(QFile::permissions(root.path(name)) & (QFile::ReadGroup | QFile::ReadOther), 0)
        << "still private";
    EXPECT_EQ(QDir(root.path({})).entryList(QDir::Files | QDir::Hidden), QStringList{name})
        << "nothing left over";
}

TEST_F(IniFileTest, WritesThroughALink)
{
    const QString target = root.write(u"real/Target.ini"_s, "[S]\r\nk=1\r\n");
    ASSERT_TRUE(QFile::link(u"real/Target.ini"_s, root.path(u"chain"_s)));
    ASSERT_TRUE(QFile::link(u"chain"_s, root.path(name)));
    ini.write(u"S"_s, u"k"_s, u"2"_s);
    EXPECT_EQ(root.read(u"real/Target.ini"_s), "[S]\r\nk=2\r\n");
    EXPECT_TRUE(QFileInfo(root.path(name)).isSymLink());
    EXPECT_TRUE(QFileInfo(root.path(u"chain"_s)).isSymLink());
}

TEST_F(IniFileTest, FailuresAreSilent)
{
    root.makeFolder(name);
    ini.write(u"S"_s, u"k"_s, u"v"_s);
    EXPECT_TRUE(QFileInfo(root.path(name)).isDir());
    EXPECT_EQ(ini.read(u"S"_s, u"k"_s, u"d"_s, 255), u"d"_s);

    IniFile nowhere(root.path(u"gone/Test.ini"_s));
    nowhere.write(u"S"_s, u"k"_s, u"v"_s);
    EXPECT_EQ(nowhere.read(u"S"_s, u"k"_s, u"d"_s, 255), u"d"_s);
}

TEST_F(IniFileTest, WritesNoLineEndInsideAValue)
{
    const struct
    {
        QString value;
        QByteArray line;
        QString readBack;
    } cases[] = {
        {u"a\nb"_s, "k=a", u"a"_s},
        {u"a \r\n[T]\r\nk=2"_s, "k=a ", u"a"_s},
        {u"a\rb"_s, "k=a", u"a"_s},
        {u"\n"_s, "k=", u""_s},
        {u"\u4E2D\n\u4E2D"_s, "k=\xE4\xB8\xAD", u"\u4E2D"_s},
    };
    for (const auto& c : cases) {
        const QByteArray mark = c.line.contains('\xE4') ? "\xEF\xBB\xBF" : "";
        EXPECT_EQ(written("[S]\r\nk=1\r\n[T]\r\nk=3\r\n", u"k"_s, c.value),
                  mark + "[S]\r\n" + c.line + "\r\n[T]\r\nk=3\r\n");
        EXPECT_EQ(ini.read(u"S"_s, u"k"_s, {}, 255), c.readBack);
    }
    ini.write(u"U\n[V"_s, u"k\nx"_s, u"v"_s);
    ini.replaceSections({{u"W\n[V"_s, {{u"k\nx"_s, u"v\nx"_s}}}});
    EXPECT_TRUE(root.read(name).endsWith("[U]\r\nk=v\r\n[W]\r\nk=v\r\n"));
}

TEST_F(IniFileTest, ReadsAndReplacesWholeSections)
{
    root.write(name, "[A]\r\n2=b\r\n; note\r\n1=\"a\"\r\n2=again\r\n\r\n[B]\r\nx=1\r\n[C]\r\n\r\n[D]");
    const QList<IniEntry> before = {{u"2"_s, u"b"_s}, {u"1"_s, u"a"_s}};
    EXPECT_EQ(ini.readSection(u"a"_s, 255), before);
    EXPECT_EQ(ini.readSection(u"gone"_s, 255), QList<IniEntry>());

    EXPECT_TRUE(ini.replaceSections({{u"a"_s, {{u"1"_s, u"n"_s}}},
                                     {u"C"_s, {{u"y"_s, u"2"_s}}},
                                     {u"D"_s, {{u"z"_s, u"3"_s}}},
                                     {u"E"_s, {{u"k"_s, u"v"_s}}},
                                     {u"F"_s, {}},
                                     {u"B"_s, {}}}));
    EXPECT_EQ(root.read(name),
              "[A]\r\n1=n\r\n; note\r\n\r\n[B]\r\n[C]\r\ny=2\r\n\r\n[D]\r\nz=3\r\n[E]\r\nk=v\r\n");
    root.makeFolder(u"folder"_s);
    EXPECT_FALSE(IniFile(root.path(u"folder"_s)).replaceSections({{u"a"_s, {{u"1"_s, u"n"_s}}}}));
}

/// The two hundred reads of a start, from a file as large as one may be, and another hand that writes
/// between them: in place with the same length, with the old time put back, or by another file.
TEST_F(IniFileTest, KeepsALargeFileButNotAgainstAnotherHand)
{
    QByteArray large;
    for (int i = 0; large.size() < 4'000'000; ++i)
        large += "[s" + QByteArray::number(i) + "]\r\nk=" + QByteArray(100, 'x') + "\r\n";
    root.write(name, large + "[S]\r\nk=a\r\n");
    QThread::msleep(60);                     // the file's time stands for its content from here on
    const std::clock_t start = std::clock(); // the processor's, whatever else runs here
    for (int i = 0; i < 200; ++i)
        ASSERT_EQ(ini.read(u"S"_s, u"k"_s, {}, 255), u"a"_s);
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);

    const QByteArray path = QFile::encodeName(ini.path());
    struct stat old = {};
    ::stat(path.constData(), &old);
    root.write(name, large + "[S]\r\nk=b\r\n");
    const timespec times[] = {old.st_atim, old.st_mtim};
    ::utimensat(AT_FDCWD, path.constData(), times, 0);
    EXPECT_EQ(ini.read(u"S"_s, u"k"_s, {}, 255), u"b"_s);
    root.write(name, large + "[S]\r\nk=c\r\n");
    EXPECT_EQ(ini.read(u"S"_s, u"k"_s, {}, 255), u"c"_s) << "within the same step of the clock";

    root.write(u"other"_s, "[S]\r\nk=d\r\nx=1\r\n");
    ::rename(QFile::encodeName(root.path(u"other"_s)).constData(), path.constData());
    EXPECT_TRUE(ini.write(u"S"_s, u"k"_s, u"e"_s));
    EXPECT_EQ(root.read(name), "[S]\r\nk=e\r\nx=1\r\n");
    QFile::remove(ini.path());
    EXPECT_EQ(ini.read(u"S"_s, u"k"_s, u"gone"_s, 255), u"gone"_s);
}

} // namespace
} // namespace varnhold
