#include "covers/CoverCommands.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakeShell.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(CoverCommands, ShowsTheCoverAndItsFolder)
{
    const TempRoot root;
    ApplicationState state;
    SettingsFile file{root.paths(), state};
    Settings settings{file};
    FakeShell shell;
    FakeMessageBoxes boxes;
    CoverCommands commands(settings, shell, boxes);

    commands.mnuImageView_Click(u"BLUS30443"_s);
    boxes.expect(u"Folder does not exist"_s);
    commands.mnuImageExplore_Click();
    boxes.expect(u"Folder does not exist"_s);
    commands.mnuImageOpen_Click();
    EXPECT_TRUE(shell.opened.isEmpty());

    const QString cover = root.write(u"covers/BLUS30443.jpg"_s, "JFIF");
    const QString folder = root.path(u"covers"_s);
    settings.unwrittenValues().covers.tag = folder;
    commands.mnuImageView_Click(u"BCES00509"_s);
    EXPECT_TRUE(shell.opened.isEmpty()) << "a game without a cover";
    commands.mnuImageView_Click(u"BLUS30443"_s);
    commands.mnuImageOpen_Click();
    commands.mnuImageExplore_Click();
    EXPECT_EQ(shell.opened, (QStringList{cover, folder}));
    EXPECT_EQ(shell.explored, QStringList{folder});
}

TEST(CoverFile, IsARegularFileOfTheFolderItself)
{
    const TempRoot root;
    ApplicationState state;
    SettingsFile file{root.paths(), state};
    Settings settings{file};
    settings.unwrittenValues().covers.tag = root.path(u"covers"_s);
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
        EXPECT_EQ(coverFile(settings, c.id),
                  c.found.isEmpty() ? QString() : root.path(u"covers/"_s + c.found))
            << qPrintable(c.id);
}

} // namespace varnhold::test
