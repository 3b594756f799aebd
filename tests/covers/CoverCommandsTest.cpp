#include "CoverWorld.h"

#include "covers/CoverCommands.h"
#include "state/Hosts.h"
#include "support/FakeFileDialogs.h"
#include "support/FakeShell.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class CoverCommandsTest : public CoverWorld
{
protected:
    Hosts hosts;
    FakeShell shell;
    FakeFileDialogs dialogs;
    CoverCommands commands{{settings, folder, hosts, root.paths(), shell, dialogs, boxes, u"Varnhold"_s}};
};

} // namespace

TEST_F(CoverCommandsTest, ShowsTheCoverAndItsFolder)
{
    commands.mnuImageView_Click(u"BLUS30443"_s);
    boxes.expect(u"Folder does not exist"_s);
    commands.mnuImageExplore_Click();
    boxes.expect(u"Folder does not exist"_s);
    commands.mnuImageOpen_Click();
    EXPECT_TRUE(shell.opened.isEmpty());

    const QString cover = root.write(u"covers/BLUS30443.jpg"_s, "JFIF");
    const QString path = root.path(u"covers"_s);
    settings.unwrittenValues().covers.tag = path;
    commands.mnuImageView_Click(u"BCES00509"_s);
    EXPECT_TRUE(shell.opened.isEmpty()) << "a game without a cover";
    commands.mnuImageView_Click(u"BLUS30443"_s);
    commands.mnuImageOpen_Click();
    commands.mnuImageExplore_Click();
    EXPECT_EQ(shell.opened, (QStringList{cover, path}));
    EXPECT_EQ(shell.explored, QStringList{path});
}

TEST_F(CoverCommandsTest, ChoosesAndClearsTheFolder)
{
    dialogs.cancelNext();
    EXPECT_FALSE(commands.mnuCoverPath_Click());
    EXPECT_EQ(dialogs.asked.constLast().title, u"Select Cover Path"_s);
    EXPECT_EQ(dialogs.asked.constLast().startFolder, root.paths().root);
    dialogs.answer(u"/media/my.covers"_s);
    EXPECT_TRUE(commands.mnuCoverPath_Click());
    EXPECT_EQ(settings.covers().text, u"my.covers"_s);
    EXPECT_EQ(file.INI_Read(u"Settings"_s, u"Cover Path"_s, {}), u"/media/my.covers"_s);
    dialogs.answer(u"/"_s);
    commands.mnuCoverPath_Click();
    EXPECT_EQ(dialogs.asked.constLast().startFolder, u"/media/my.covers"_s);
    EXPECT_EQ(settings.covers().text, u"/"_s);
    commands.clearCoverPath();
    EXPECT_EQ(settings.covers().tag, QString());
    EXPECT_EQ(file.INI_Read(u"Settings"_s, u"Cover Name"_s, u"gone"_s), QString());
}

TEST_F(CoverCommandsTest, SearchesPicturesInTheDesktopsBrowser)
{
    boxes.expect(u"hosts.ini names no host to search pictures on."_s, u"Varnhold"_s);
    commands.mnuGoogle_Click(selected);
    hosts.imageSearch.authority = u"images.example:8"_s;
    commands.mnuGoogle_Click(u"A&B C"_s);
    EXPECT_EQ(shell.opened, QStringList{u"http://images.example:8/images?q=A%26B%20C+PS3"_s});
}

TEST_F(CoverCommandsTest, FindsRegularFilesOfTheFolderItself)
{
    setFolder();
    for (const QString& name :
         {u"outside.jpg"_s, u"covers/in/side.jpg"_s, u"covers/B1.JPG"_s, u"covers/B2.JPG"_s,
          u"covers/B2.jpg"_s, u"covers/b3.Jpg"_s, u"covers/B3.jpG"_s, u"covers/\u00C4.JPG"_s})
        root.write(name, "JFIF");
    root.makePipe(u"covers/pipe.jpg"_s);
    root.makeFolder(u"covers/folder.jpg"_s);
    const struct
    {
        QString id;
        QString found;
    } cases[] = {
        {u"B1"_s, u"B1.JPG"_s}, {u"B2"_s, u"B2.jpg"_s},
        {u"B3"_s, u"B3.jpG"_s}, {u"\u00E4"_s, u"\u00C4.JPG"_s},
        {u"../outside"_s, {}},  {u"in/side"_s, {}},
        {u"pipe"_s, {}},        {u"folder"_s, {}},
        {u"B1.JPG\0"_s, {}},    {u"gone"_s, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(folder.find(c.id), c.found.isEmpty() ? QString() : root.path(u"covers/"_s + c.found))
            << qPrintable(c.id);
}

} // namespace varnhold::test
