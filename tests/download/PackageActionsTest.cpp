#include "download/PackageActions.h"

#include "PlannerWorld.h"
#include "download/DiskFiles.h"
#include "platform/Files.h"
#include "support/FakeShell.h"
#include "support/FakeTrash.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace varnhold::test {

namespace {

class PackageActionsTest : public testing::Test, public PlannerWorld
{
protected:
    PackageActionsTest()
    {
        root.makeFolder(u"dl"_s);
        settings.setSaveDir(root.path(u"dl"_s));
        list.addRow(u"Notes"_s);
        list.addRow(u"../out"_s);
    }

    void fill(const QStringList& names)
    {
        QDir(root.path(u"dl"_s)).removeRecursively();
        root.makeFolder(u"dl"_s);
        for (const QString& name : names)
            root.write(u"dl/"_s + name, "x");
    }
    QString left() const
    {
        return QDir(root.path(u"dl"_s)).entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' ');
    }
    void expectQuestion(const QString& name, BoxAnswer answer)
    {
        boxes.expect(u"Are you sure you want to send\r\n'%1'\r\nto the Recycle Bin?"_s.arg(name), u"Title"_s,
                     answer);
    }

    DiskFiles disk;
    FakeTrash trash;
    FakeShell shell;
    PackageActions actions{{settings, list, *this, disk, trash, boxes, shell, sounds, u"Title"_s}};
};

} // namespace

TEST_F(PackageActionsTest, DeletesInFiveWays)
{
    const QString aboutMarker = u"Would you also like to Delete \r\n\r\na.txt ?"_s;
    struct Answer
    {
        QString text;
        BoxAnswer answer = BoxAnswer::Ok;
    };
    const QString send = u"Are you sure you want to send\r\n'a.pkg'\r\nto the Recycle Bin?"_s;
    const QString deleted = u"File Deleted successfully"_s;
    struct Case
    {
        const char* name;
        QStringList files;
        QList<Answer> answers;
        QString left, icon;
        QStringList inUse = {};
    };
    const Case cases[] = {
        {"package, both yes",
         {u"a.pkg"_s, u"a.temp"_s, u"a.txt"_s},
         {{send, BoxAnswer::Yes}, {aboutMarker, BoxAnswer::Yes}},
         u"a.temp"_s,
         u"pkg"_s},
        {"package, no", {u"a.pkg"_s, u"a.txt"_s}, {{send, BoxAnswer::No}}, u"a.pkg a.txt"_s, u"pkg-plus"_s},
        {"package, marker stays",
         {u"a.pkg"_s, u"a.txt"_s},
         {{send, BoxAnswer::Yes}, {aboutMarker, BoxAnswer::No}},
         u"a.txt"_s,
         u"plus"_s},
        {"package without marker",
         {u"a.pkg"_s},
         {{send, BoxAnswer::Yes},
          {aboutMarker, BoxAnswer::Yes},
          {reportText(53, u"File not found"_s), BoxAnswer::Ok}},
         {},
         u"plus"_s},
        {"partial",
         {u"a.temp"_s, u"a.txt"_s},
         {{deleted, BoxAnswer::Ok}, {aboutMarker, BoxAnswer::Yes}},
         {},
         u"pkg"_s},
        {"partial, marker stays",
         {u"a.temp"_s, u"a.txt"_s},
         {{deleted, BoxAnswer::Ok}, {aboutMarker, BoxAnswer::No}},
         u"a.txt"_s,
         u"plus"_s},
        {"partial that a window writes",
         {u"a.temp"_s, u"a.txt"_s},
         {{reportText(70, u"Permission denied"_s), BoxAnswer::Ok}},
         u"a.temp a.txt"_s,
         u"pkg-plus"_s,
         {root.path(u"dl/a.temp"_s)}},
        {"marker", {u"a.txt"_s}, {}, {}, u"pkg"_s},
        {"nothing", {u"b.txt"_s}, {}, u"b.txt"_s, u"pkg-plus"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        fill(c.files);
        inUse = c.inUse;
        list.setIcon(1, u"pkg-plus"_s);
        boxes.shown.clear();
        for (const Answer& answer : c.answers)
            boxes.expect(answer.text, answer.answer);
        actions.mnuKill_Click();
        EXPECT_EQ(left(), c.left);
        EXPECT_EQ(list.icon(1), c.icon);
        for (const MessageBox& box : boxes.shown)
            EXPECT_EQ(box.icon, box.buttons == BoxButtons::YesNo       ? BoxIcon::Question
                                : box.text.startsWith(u"Err Number"_s) ? BoxIcon::Critical
                                                                       : BoxIcon::None);
    }
}

TEST_F(PackageActionsTest, DeletesTheFilesThatRowsWithoutAddressName)
{
    fill({u"NOTES.TXT"_s});
    root.write(u"out"_s, "x");
    selected = 5;
    actions.mnuKill_Click(); // leads out of the folder: names nothing
    EXPECT_EQ(list.count(), 5);

    selected = 4;
    expectQuestion(u"NOTES.TXT"_s, BoxAnswer::No);
    actions.mnuKill_Click();
    EXPECT_EQ(left(), u"NOTES.TXT"_s);
    EXPECT_EQ(list.count(), 5);

    player.played.clear();
    expectQuestion(u"NOTES.TXT"_s, BoxAnswer::Yes);
    actions.mnuKill_Click();
    EXPECT_EQ(left(), QString());
    EXPECT_EQ(list.count(), 4);
    EXPECT_EQ(player.played.size(), 2); // twice on this way; meant

    selected = 0;
    boxes.expect(reportText(91, u"Object variable not set"_s));
    actions.mnuKill_Click();
}

TEST_F(PackageActionsTest, LosesNothingWhereTheTrashFails)
{
    fill({u"a.pkg"_s, u"a.txt"_s});
    list.setIcon(1, u"pkg-plus"_s);
    trash.failure = 75;
    expectQuestion(u"a.pkg"_s, BoxAnswer::Yes);
    boxes.expect(reportText(75, u"Path/File access error"_s));
    actions.mnuKill_Click();
    EXPECT_EQ(left(), u"a.pkg a.txt"_s);
    EXPECT_EQ(list.icon(1), u"pkg-plus"_s);
}

TEST_F(PackageActionsTest, MarksInTheWholePath)
{
    struct Case
    {
        const char* name;
        QString url, saveDir;
        bool titleFolder;
        QString made; ///< below the root
        int failure;
    };
    const Case cases[] = {
        {"package", u"http://host/a.pkg"_s, u"dl"_s, false, u"dl/a.txt"_s, 0},
        {"title's folder", u"http://host/a.pkg"_s, u"dl"_s, true, u"dl/BLUS30443-[Game]/a.txt"_s, 0},
        {"no .pkg: the package's own name", u"http://host/a.PKG"_s, u"dl"_s, false, u"dl/a.PKG"_s, 0},
        {"a folder that holds .pkg", u"http://host/a.pkg"_s, u"x.pkgs"_s, false, {}, 76},
        {"no url", {}, u"dl"_s, false, {}, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        fill({});
        root.makeFolder(c.saveDir);
        settings.setSaveDir(root.path(c.saveDir));
        settings.setChecked(Check::CGNFolder, c.titleFolder);
        list.setSubItem(1, UpdateList::Url, c.url);
        list.setIcon(1, u"pkg"_s);
        if (c.failure != 0)
            boxes.expect(reportText(76, u"Path not found"_s));
        actions.mnuMarkDL_Click();
        if (!c.made.isEmpty()) {
            EXPECT_EQ(root.read(c.made), QByteArray());
        }
        EXPECT_EQ(list.icon(1), c.made.isEmpty() ? u"pkg"_s : u"plus"_s);
    }
}

TEST_F(PackageActionsTest, OpensTheFolderOfTheOptions)
{
    root.makeFolder(u"dl/BLUS30443-[Game]"_s);
    settings.setChecked(Check::CGNFolder, true);
    actions.mnuExplore_Click();
    actions.mnuOpenDir_Click();
    const QStringList title{root.path(u"dl/BLUS30443-[Game]"_s)};
    EXPECT_EQ(shell.explored, title);
    EXPECT_EQ(shell.opened, title);

    settings.setChecked(Check::CGNFolder, false);
    boxes.expect(u"Folder does not exist"_s);
    actions.mnuExplore_Click(); // looks for the id's folder, which no download makes; meant
    settings.setChecked(Check::UseDLD, false);
    actions.mnuOpenDir_Click();
    EXPECT_EQ(shell.opened, title);
}

} // namespace varnhold::test
