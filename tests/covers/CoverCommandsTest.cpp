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

} // namespace varnhold::test
