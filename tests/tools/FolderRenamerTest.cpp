#include "tools/FolderRenamer.h"

#include "platform/Folders.h"
#include "state/Sounds.h"
#include "support/ErrorNumber.h"
#include "support/FakeFileDialogs.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakePump.h"
#include "support/FakeShell.h"
#include "support/FakeSoundPlayer.h"
#include "support/FakeTrash.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(FolderNamesTest, CleansTheWholePath)
{
    struct Case
    {
        const char* path;
        const char* unwanted;
        bool doubleBlanks;
        const char* cleaned;
    };
    const Case cases[] = {
        {"/base/Game (EU)", "(EU)", false, "/base/Game "}, // nothing is trimmed
        {"/base/Game (EU)", "(EU),", false, "/base/Game "},
        {"/base/Game (EU)", "(eu)", false, "/base/Game (EU)"},
        {"/base/Game (EU)", " (EU)", false, "/base/Game"}, // blanks of an entry count
        {"/baXse/aXb", "X", false, "/base/ab"},            // in the folders above too; meant
        {"/base/a   b", "", true, "/base/a  b"},           // one pass
        {"/base/a x b", "x", true, "/base/a  b"},          // blanks before the texts
        {"/p/abab", "ab,b", false, "/p/"},
        {"/base/aXYb", "XY,ab", false, "/base/"}, // what one entry leaves, the next one sees
        {"/base/BCUS10001-[Game]", "000", false, "/base/BCUS11-[Game]"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(cleanedPath(QString::fromLatin1(c.path),
                              NameCleaning::from(QString::fromLatin1(c.unwanted), c.doubleBlanks)),
                  QLatin1StringView(c.cleaned))
            << c.path << " without " << c.unwanted;
}

TEST(FolderNamesTest, GuardsWhatIsTheSystems)
{
    const TempRoot root;
    QFile::link(u"/etc"_s, root.path(u"link"_s));
    const QString guarded =
        u"C:/games Cellar / // /home /home/ /media /opt /usr /usr/local/x /lib64/x /var/lib /run "
        "/run/lock /run/media /var/home /tmp/../etc "_s +
        root.path(u"link"_s) + u' ' + root.path(u"link/x"_s);
    for (const QString& path : guarded.split(u' '))
        EXPECT_TRUE(isGuarded(path)) << qPrintable(path);
    const QString open =
        u"c:/games /home/me /media/me/disk /opt/games /run/media/me/x /var/home/me /userdata "
        "/variety /mnt/C "_s +
        root.path(u"Games"_s);
    for (const QString& path : open.split(u' '))
        EXPECT_FALSE(isGuarded(path)) << qPrintable(path);
}

TEST(FoldersTest, RenamesOverNothing)
{
    struct Case
    {
        const char* from;
        const char* to;
        int error;
    };
    const Case cases[] = {
        {"a", "a", 0},     {"a", "A2", 0}, {"none", "x", 53}, {"a", "none/x", 76}, {"a", "empty", 58},
        {"a", "file", 58}, {"a", "", 58},  {"a", "link", 58}, {"a", "a/b", 52},    {"a", "full/x", 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.from << " to " << c.to);
        TempRoot root;
        for (const QString& name : {u"a/inside"_s, u"empty"_s, u"full/y"_s})
            root.makeFolder(name);
        root.write(u"file"_s, "x");
        QFile::link(u"nowhere"_s, root.path(u"link"_s));
        const QString to = *c.to == '\0' ? QString() : root.path(QString::fromLatin1(c.to));
        EXPECT_EQ(errorNumberOf([&] { renameFolder(root.path(QString::fromLatin1(c.from)), to); }), c.error);
        const QString now = c.error == 0 ? to : root.path(u"a"_s);
        EXPECT_TRUE(QDir(now + u"/inside"_s).exists());
        EXPECT_TRUE(c.error == 0 || QDir(root.path(u"empty"_s)).exists());
    }
    EXPECT_EQ(errorNumberOf([] { renameFolder(u"/tmp"_s, u"bare name"_s); }), 76);
}

namespace {

class FolderRenamerTest : public testing::Test, public SettingsWorld
{
protected:
    FolderRenamerTest()
    {
        for (const char* name : {"b/Zeta (EU)", "b/alpha (EU)", "b/.hidden", "b/Beta", "b/tab\tname"})
            root.makeFolder(QString::fromLatin1(name));
        root.write(u"b/file"_s, "x");
        QFile::link(root.path(u"b/Beta"_s), root.path(u"b/link"_s));
        QDir().mkdir(root.path(u"b"_s)); // is there already
        settings.setUnwantedStrings(u" (EU)"_s);
    }
    void load()
    {
        dialogs.answer(base);
        renamer.btnLoad_Click();
    }
    /// Names below the base, one list after the other.
    QString names(QStringListModel& list) const
    {
        QString text = list.stringList().join(u'|');
        return text.replace(base + u'/', QString());
    }
    QString disk() const
    {
        return QDir(base)
            .entryList(QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot,
                       QDir::Name | QDir::IgnoreCase)
            .join(u'|');
    }
    void expectReport(int number, const QString& description, const QString& path)
    {
        boxes.expect(
            u"Err Number:\t%1\r\nErr Source:\tVarnhold\r\nErr Description:\t%2\r\nErr File:\t%3"_s.arg(number)
                .arg(description, path));
    }
    void expectGuard()
    {
        boxes.expect(u"Err Source:\tC Drive\r\nErr Description:\tDisabled Drive letter"_s,
                     u"ErrorException"_s);
    }

    QString base = root.path(u"b"_s);
    FakeFileDialogs dialogs;
    FakeMessageBoxes boxes;
    FakePump pump;
    FakeShell shell;
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakeTrash trash;
    QString inUse;
    QList<bool> busy;
    FolderRenamer renamer{{.settings = settings,
                           .dialogs = dialogs,
                           .boxes = boxes,
                           .pump = pump,
                           .shell = shell,
                           .sounds = sounds,
                           .trash = trash,
                           .paths = root.paths(),
                           .applicationTitle = u"Title"_s,
                           .isInUse = [this](const QString& folder) { return folder == inUse; },
                           .setBusy = [this](bool on) { busy.append(on); }}};
};

} // namespace

TEST_F(FolderRenamerTest, ListsOneLevelOfRealFolders)
{
    load();
    EXPECT_EQ(names(renamer.lstDirFrom()), u".hidden|alpha (EU)|Beta|tab\tname|Zeta (EU)"_s);
    EXPECT_EQ(renamer.title(), u"Found - 5 Directories"_s);
    EXPECT_EQ(renamer.current(), base);
    EXPECT_EQ(dialogs.asked.constLast().title, u"Select Base Folder"_s);
    EXPECT_EQ(dialogs.asked.constLast().startFolder, root.paths().root);
    EXPECT_EQ(busy, (QList<bool>{true, false}));

    dialogs.cancelNext();
    renamer.btnLoad_Click();
    EXPECT_EQ(renamer.base(), base);

    // A second press while a scan pumps starts nothing; one whose window goes ends.
    pump.at(pump.count + 1, [&] { renamer.btnLoad_RightClick(); });
    renamer.btnLoad_RightClick();
    EXPECT_EQ(renamer.title(), u"Found - 5 Directories"_s);
    pump.at(pump.count + 1, [&] { renamer.abandon(); });
    renamer.btnLoad_RightClick();
    EXPECT_EQ(renamer.title(), u"One Moment Please!"_s);

    QDir(base).removeRecursively();
    renamer.btnLoad_RightClick();
    EXPECT_EQ(renamer.title(), u"Found - 0 Directories"_s);
    expectGuard();
    dialogs.answer(u"/etc"_s);
    renamer.btnLoad_Click();
    EXPECT_EQ(renamer.base(), base);
}

TEST_F(FolderRenamerTest, ProcessesWhatIsListed)
{
    load();
    renamer.btnProcess_Click(); // not agreed
    EXPECT_EQ(names(renamer.lstDirFrom()), u".hidden|alpha (EU)|Beta|tab\tname|Zeta (EU)"_s);
    renamer.setAgreed(true);
    renamer.btnProcess_Click();
    EXPECT_EQ(disk(), u".hidden|alpha|Beta|tab\tname|Zeta"_s);
    EXPECT_EQ(names(renamer.lstDirTo()), disk());
    EXPECT_EQ(names(renamer.lstDirFrom()), QString());
    EXPECT_EQ(renamer.title(), u"Processed - 5 Directories"_s);
    EXPECT_EQ(renamer.counted(), u"5"_s);
    EXPECT_EQ(renamer.current(), base + u"/Zeta"_s);
    renamer.btnProcess_Click();
    EXPECT_EQ(renamer.title(), u"Processed - 0 Directories"_s);
    EXPECT_EQ(renamer.counted(), QString());
}

TEST_F(FolderRenamerTest, EndsTheRunAtTheFirstFailure)
{
    const QString alpha = base + u"/alpha (EU)"_s;
    struct Case
    {
        const char* name;
        std::function<void()> prepare;
        std::function<void()> expectBox;
        QString disk;
    };
    const Case cases[] = {
        {"target is there", [&] { root.makeFolder(u"b/alpha"_s); },
         [&] { expectReport(58, u"File already exists"_s, alpha); },
         u".hidden|alpha|alpha (EU)|Beta|tab\tname|Zeta (EU)"_s},
        {"folder gone", [&] { QDir().rmdir(alpha); }, [&] { expectReport(53, u"File not found"_s, alpha); },
         u".hidden|Beta|tab\tname|Zeta (EU)"_s},
        {"a download works in it", [&] { inUse = alpha; },
         [&] { expectReport(75, u"Path/File access error"_s, alpha); },
         u".hidden|alpha (EU)|Beta|tab\tname|Zeta (EU)"_s},
        {"the list eats the slash", [&] { settings.setUnwantedStrings(u"/"_s); },
         [&] { expectReport(76, u"Path not found"_s, base + u"/.hidden"_s); },
         u".hidden|alpha (EU)|Beta|tab\tname|Zeta (EU)"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        settings.setUnwantedStrings(u" (EU)"_s);
        inUse.clear();
        QDir().mkdir(alpha);
        QDir().rmdir(base + u"/alpha"_s);
        load();
        renamer.setAgreed(true);
        const QString before = names(renamer.lstDirFrom());
        c.prepare();
        c.expectBox();
        renamer.btnProcess_Click();
        EXPECT_EQ(disk(), c.disk);
        EXPECT_EQ(names(renamer.lstDirFrom()), before);
        EXPECT_TRUE(renamer.title().startsWith(u"Found"_s));
    }
}

TEST_F(FolderRenamerTest, PassesOverNamesThatAreNoText)
{
    const QByteArray odd = QFile::encodeName(base) + "/Odd\xff (EU)";
    ASSERT_EQ(::mkdir(odd.constData(), 0777), 0);
    load();
    EXPECT_EQ(renamer.lstDirFrom().rowCount(), 6);
    renamer.setAgreed(true);
    renamer.btnProcess_Click();
    EXPECT_EQ(renamer.counted(), u"5"_s);
    EXPECT_EQ(::rmdir(odd.constData()), 0); // it is still there
}

TEST_F(FolderRenamerTest, SearchesAndKeepsTheModesApart)
{
    load();
    renamer.btnSearch_Click();
    renamer.txtSearch_Change(u"(eu"_s);
    EXPECT_EQ(names(renamer.lstSearch()), u"alpha (EU)|Zeta (EU)"_s);
    EXPECT_EQ(renamer.folderOfHit(1), 4);
    EXPECT_EQ(renamer.folderOfHit(2), -1);
    renamer.selectFolder(renamer.folderOfHit(1));
    EXPECT_EQ(renamer.manualText(), base + u"/Zeta (EU)"_s);
    renamer.setAgreed(true);
    renamer.btnProcess_Click();
    EXPECT_EQ(disk(), u".hidden|alpha|Beta|tab\tname|Zeta"_s);
    EXPECT_EQ(names(renamer.lstBuffer()), u"alpha|Zeta"_s);
    EXPECT_EQ(names(renamer.lstDirTo()), QString());
    EXPECT_EQ(names(renamer.lstSearch()) + names(renamer.lstDirFrom()), QString());
    renamer.btnCancel_Click();
    EXPECT_EQ(names(renamer.lstBuffer()), QString());
}

TEST_F(FolderRenamerTest, RenamesAndRecyclesOneByHand)
{
    renamer.btnReName_Click(); // no base: nothing
    load();
    renamer.selectFolder(2);
    renamer.setManualText(base + u"/Gamma"_s);
    renamer.btnReName_Click();
    EXPECT_EQ(disk(), u".hidden|alpha (EU)|Gamma|tab\tname|Zeta (EU)"_s);
    EXPECT_EQ(renamer.title(), u"Found - 5 Directories"_s);
    renamer.setManualText(u"Gamma2"_s);
    expectReport(53, u"File not found"_s, base + u"/Beta"_s); // the tag still names the old one
    renamer.setManualText(base + u"/x"_s);
    renamer.btnReName_Click();
    expectGuard();
    renamer.setManualText(u"/etc/x"_s);
    renamer.btnReName_Click();

    renamer.openMenu(true, -1);
    EXPECT_EQ(renamer.openCaption(), u"Open: - [ ]"_s);
    renamer.mnuOpenDir_Click();
    renamer.mnuRecycle_Click();
    EXPECT_TRUE(shell.opened.isEmpty());
    renamer.openMenu(false, 0);
    EXPECT_EQ(renamer.recycleCaption(), QString());
    renamer.openMenu(true, 1);
    EXPECT_EQ(renamer.openCaption(), u"Open: "_s + base + u"/alpha (EU)"_s);
    EXPECT_EQ(renamer.recycleCaption(), u"Recycle: "_s + base + u"/alpha (EU)"_s);
    renamer.mnuOpenDir_Click();
    EXPECT_EQ(shell.opened, QStringList{base + u"/alpha (EU)"_s});
    const QString question =
        u"Are you sure you want to send\r\n'"_s + base + u"/alpha (EU)'\r\nto the Recycle Bin?"_s;
    boxes.expect(question, u"Title"_s, BoxAnswer::No);
    renamer.mnuRecycle_Click();
    EXPECT_TRUE(trash.moved.isEmpty());
    boxes.expect(question, u"Title"_s, BoxAnswer::Yes);
    renamer.mnuRecycle_Click();
    EXPECT_EQ(trash.moved, QStringList{base + u"/alpha (EU)"_s});
    EXPECT_EQ(names(renamer.lstDirFrom()), u".hidden|Gamma|tab\tname|Zeta (EU)"_s);
}

} // namespace varnhold::test
