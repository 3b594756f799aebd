#include "SkinWorld.h"

#include "appearance/SkinIni.h"
#include "appearance/SkinPictures.h"
#include "appearance/ToolkitLook.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/Contrast.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/SystemColorsUi.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "download/frm_Winsock.h"
#include "support/FakeClock.h"
#include "support/FakeDownloadFiles.h"
#include "support/FakeSocket.h"

#include <QAction>
#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QListWidget>
#include <QMenu>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

struct SkinTest : SkinWorld
{
};

QColor textColor(const QWidget& label)
{
    return label.palette().color(QPalette::WindowText);
}

QImage imageOf(const QObject& control, const char* property)
{
    return control.property(property).value<QPixmap>().toImage();
}

} // namespace

TEST(SkinTargets, GiveThreeButtonsTheHoverFaceWithTheFocus)
{
    QStringList exceptions;
    int buttons = 0;
    for (const auto& targets :
         {mainTargets(), settingsTargets(), searchTargets(), databaseTargets(), databaseButtonTargets()}) {
        for (const SkinTarget& target : targets) {
            if (target.family == nullptr)
                continue;
            ++buttons;
            if (target.faces == hoverWhenFocused)
                exceptions.append(QLatin1StringView(target.window) + u' ' +
                                  QLatin1StringView(target.control));
            else
                EXPECT_EQ(target.faces, (FaceOrder{1, 2, 1, 3, 3}));
        }
    }
    EXPECT_EQ(exceptions,
              (QStringList{u"frmSearch cmdImport"_s, u"frmDB cmd_Collapse(1)"_s, u"frmDB cmd_Tools(1)"_s}));
    EXPECT_EQ(buttons, 14 + 36 + 6 + 25);
}

TEST_F(SkinTest, PutsItsFileOnEachControl)
{
    ASSERT_TRUE(skin.ApplySkin());
    EXPECT_FALSE(menu.findChild<QMenu*>("mnuCovers"_L1)->icon().isNull()) << "a submenu goes by its own name";
    SkinPictures pictures(root.path(u"skin/default"_s));
    int dressed = 0;
    for (const auto& targets : {normalTargets(), mainTargets(), settingsTargets()}) {
        for (const SkinTarget& target : targets) {
            QWidget* const window = windows.window(target.window);
            ASSERT_NE(window, nullptr);
            QWidget* const control = *target.control == '\0'
                                         ? window
                                         : window->findChild<QWidget*>(QLatin1StringView(target.control));
            if (control == nullptr)
                continue; // of a page that is not there yet
            ++dressed;
            if (target.family == nullptr) {
                EXPECT_EQ(imageOf(*control, target.property),
                          pictures.load(QLatin1StringView(target.file)).toImage())
                    << target.control;
                continue;
            }
            for (std::size_t i = 0; i < 5; ++i) {
                const char* const name = target.family->files.at(std::size_t(target.faces.at(i) - 1));
                EXPECT_EQ(imageOf(*control, faceProperties.at(i)),
                          pictures.load(QLatin1StringView(name)).toImage())
                    << target.control << ' ' << faceProperties.at(i);
            }
        }
    }
    EXPECT_GE(dressed, 4 + 6 + 9);
    const auto& fetch = child<ButtonEx>(main, "btnFetch");
    EXPECT_EQ(fetch.ForeColor(), page.Shape_Color[SkinPage::Fore]);
    EXPECT_EQ(fetch.HighlightColor(), page.Shape_Color[SkinPage::Highlight]);
    EXPECT_EQ(fetch.BackColor(), page.Shape_Color[SkinPage::Back]);
    EXPECT_EQ(child<XP_ProgressBar>(main, "ProgressBar1").color(), page.Shape_Color[SkinPage::Back]);
    EXPECT_FALSE(main.mask().contains(QPoint(0, 0))) << "a corner is cut away";
    EXPECT_TRUE(main.mask().contains(main.rect().center()));
    const auto* exit = menu.findChild<QAction*>(u"mnuExit"_s);
    EXPECT_FALSE(exit->icon().isNull());
    EXPECT_TRUE(exit->isIconVisibleInMenu());
    EXPECT_EQ(page.availableSkins, u"2"_s);
    EXPECT_EQ(child<QLabel>(settingsWindow, "lbl_Available_Skins(1)").text(), u"2"_s);
    EXPECT_FALSE(menu.findChild<QAction*>(u"mnuSkin(2)"_s)->icon().isNull());
    EXPECT_EQ(child<MorphListBox>(main, "MorphListBox1").BackColor1(),
              SkinIni(file).customColor(u"BackColor1"_s));
}

TEST_F(SkinTest, ShowsWhereTheKeyboardIs)
{
    copyFolder(QStringLiteral(VARNHOLD_SKINS "/copper"), root.path(u"skin/copper"_s));
    for (const char* const name : {"default", "paper", "copper"}) {
        SCOPED_TRACE(name);
        settings.writeSkinPath(root.path(u"skin/"_s + QLatin1StringView(name)));
        ASSERT_TRUE(skin.ApplySkin());
        const ColorValue line = toColorValue(QApplication::palette().color(QPalette::Link));
        for (const ColorValue ground : {page.Shape_Color[SkinPage::Back], main.games().BackColor1(),
                                        toColorValue(settingsWindow.picture().toImage().pixelColor(200, 100)),
                                        toColorValue(main.picture().toImage().pixelColor(250, 200))})
            EXPECT_GE(contrastRatio(line, ground), 3) << ground;
        for (const ColorValue ground : {main.games().BackColor1(), main.games().SelColor1()})
            EXPECT_GE(contrastRatio(main.games().FocusRectColor(), ground), 3) << ground;
        EXPECT_NE(main.games().DisForeColor(), main.games().ForeColor()) << "locked, it looks so";
        for (const ColorValue ground : {main.games().DisBackColor1(), main.games().DisBackColor2()})
            EXPECT_GE(contrastRatio(main.games().DisForeColor(), ground), 4.5) << ground;
    }
    setUpToolkitLook(*qApp);
    main.setBarMainTop(1800);
    main.Splitbar_Main();
    main.show();
    main.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    for (const char* const name : {"MorphListBox1", "ListView1", "txtGameNotes"}) {
        QWidget& control = child(main, name);
        const QPoint edge = control.mapTo(&main, QPoint(control.width() / 2, 0));
        control.setFocus();
        EXPECT_EQ(main.grab().toImage().pixelColor(edge), QApplication::palette().color(QPalette::Link))
            << name;
    }
}

TEST_F(SkinTest, TakesTheEnlargedPicturesAtOnce)
{
    root.write(u"Settings.ini"_s, "[Settings]\r\nMiximize=2\r\n");
    ASSERT_TRUE(skin.ApplySkin());
    EXPECT_EQ(main.size(), QSize(595, 385));
    EXPECT_EQ(main.picture().size(), QSize(595, 385));
    splash.reset();
    main.RestoreMainWindow();
    EXPECT_EQ(main.picture().size(), QSize(447, 289));
    EXPECT_EQ(stored(u"Miximize"_s), u"1"_s);

    QFile::remove(inSkin(u"mainLBar.bmp"_s));
    boxes.expect(u"Err Number: 53\r\nErr Description: File not found\r\nSolution: Please update the skin "
                 "folder in question."_s);
    main.EnlargeMainWindow();
    EXPECT_EQ(main.size(), QSize(447, 289)) << "it stays as it is";
}

TEST_F(SkinTest, TellsOfAMissingFileAndStopsThere)
{
    QFile::remove(inSkin(u"button1.bmp"_s));
    QFile::remove(inSkin(u"Button1.bmp"_s));
    const QString told = u"Error occured:\r\nNumber:         53\r\nDescription:   A Skin file does not "
                         "exist!\r\nFile not found\r\nSolution:        Please check the skin folder in "
                         "question."_s;
    boxes.expect(told, QCoreApplication::applicationName());
    EXPECT_FALSE(skin.ApplySkin());
    EXPECT_EQ(boxes.shown.front().icon, BoxIcon::Exclamation);
    EXPECT_FALSE(main.picture().isNull()) << "applied before";
    EXPECT_TRUE(settingsWindow.picture().isNull()) << "not reached";
    const ColorValue ground = toColorValue(main.picture().toImage().pixelColor(200, 12));
    EXPECT_GE(contrastRatio(toColorValue(textColor(child(main, "lblCaption"))), ground), 4.5);
    EXPECT_EQ(storedSkin(u"Skin Name"_s), u"default"_s);
    EXPECT_EQ(storedSkin(u"Skin Path"_s), QString()) << "nothing was picked in this run";

    settings.writeSkinPath(root.path(u"skin/paper"_s));
    ASSERT_TRUE(skin.ApplySkin());
    const QRegion paper = main.mask();
    settings.writeSkinPath(root.path(u"skin/default"_s));
    boxes.expect(told);
    EXPECT_FALSE(skin.ApplySkin());
    EXPECT_NE(main.mask(), paper) << "its new picture has another outline";
    EXPECT_EQ(main.mask(), regionLeft(main.picture().toImage(), main.size(), cutAwayColor));
}

TEST_F(SkinTest, AsksForAFolderWhenTheSkinIsGone)
{
    settings.writeSkinPath(root.path(u"skin/gone"_s));
    main.move(200, 150);
    EXPECT_FALSE(skin.ApplySkin());
    EXPECT_EQ(child<QLabel>(*splash, "lblLoading").text(), u"Loading: Skin not found"_s);
    EXPECT_EQ(child<QLabel>(*splash, "lblMessage").text(), u"Please select Skin Folder.\nThank You! *¿*"_s);
    EXPECT_FALSE(page.skinLoaded);
    EXPECT_FALSE(settingsWindow.isVisible()) << "not before its owner";
    main.show();
    EXPECT_TRUE(settingsWindow.followOwner());
    EXPECT_TRUE(settingsWindow.isVisible());
    EXPECT_EQ(settingsWindow.pos(), main.pos());
    EXPECT_TRUE(child(settingsWindow, "frm_Skin(0)").isVisible());
    EXPECT_EQ(child(settingsWindow, "lbl_Available_Skins(0)").palette().color(QPalette::WindowText),
              QColor(255, 255, 0));
    EXPECT_EQ(child(settingsWindow, "lbl_Available_Skins(1)").palette().color(QPalette::WindowText),
              QColor(255, 0, 0));
    EXPECT_EQ(settingsWindow.focusWidget(), &child(settingsWindow, "btn_Skin_Path"));
    EXPECT_EQ(storedSkin(u"Skin Path"_s), root.path(u"skin/gone"_s));

    dialogs.answer(root.path(u"skin/default"_s));
    skin.mnuSkin_Path_Click();
    EXPECT_TRUE(page.skinLoaded);
    EXPECT_EQ(storedSkin(u"Skin Name"_s), u"default"_s);
}

TEST_F(SkinTest, TellsEveryOtherFailureInALine)
{
    // A bitmap that says it is 20,000 pixels wide and high.
    const QByteArray whole = root.read(u"skin/default/list.bmp"_s);
    QByteArray huge = whole;
    for (const int field : {18, 22})
        huge.replace(field, 4, QByteArray::fromHex("204e0000"));
    const struct
    {
        QByteArray bytes;
        QString text;
    } cases[] = {{"not a picture", u"481 Invalid picture"_s},
                 {"", u"481 Invalid picture"_s},
                 {"BM", u"481 Invalid picture"_s},
                 {whole.first(whole.size() / 2), u"481 Invalid picture"_s},
                 {huge, u"7 Out of memory"_s}};
    for (const auto& each : cases) {
        replace(u"barLeft.bmp"_s, each.bytes);
        boxes.expect(each.text);
        EXPECT_FALSE(skin.ApplySkin());
    }
    replace(u"barLeft.bmp"_s, "");
    QFile::remove(inSkin(u"barLeft.bmp"_s));
    QFile::copy(inSkin(u"mainBar.bmp"_s), inSkin(u"BARLEFT.BMP"_s));
    const QByteArray aFolder = inSkin({}).toUtf8(); // one that holds files
    const std::pair<QByteArray, QString> lines[] = {
        {"Skin ForeColor=red", u"13 Type mismatch"_s},
        {"Skin BackColor=-5", u"380 Invalid property value"_s},
        {"Skin HightlightColor=3000000000", u"6 Overflow"_s},
        {"LBxMode=3", u"380 Invalid property value"_s},
        {"LvPicture=1\r\nLvPicture Path=" + aFolder, u"75 Path/File access error"_s},
    };
    for (const auto& [line, text] : lines) {
        root.write(u"skin/default/Skin.ini"_s, "[Settings]\r\n" + line + "\r\n");
        boxes.expect(text);
        EXPECT_FALSE(skin.ApplySkin()) << line.constData();
    }
    EXPECT_EQ(storedSkin(u"Skin Path"_s), u"(missing)"_s) << "nothing is written back";
}

TEST_F(SkinTest, DressesInASkinFromElsewhere)
{
    // 8-bit bitmaps, names in capitals, and the list's picture where it was on another machine.
    const QString folder = u"skin/Ünder Sea v1.2"_s;
    QDirIterator walk(inSkin({}), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString source = walk.next();
        const QString name = QDir(inSkin({})).relativeFilePath(source).toUpper();
        const QString target = root.path(folder + u'/' + name);
        QDir().mkpath(QFileInfo(target).path());
        if (name.endsWith(u".BMP"_s))
            ASSERT_TRUE(QImage(source).convertToFormat(QImage::Format_Indexed8).save(target, "BMP"));
        else
            QFile::copy(source, target);
    }
    root.write(folder + u"/SKIN.INI"_s, "[Settings]\r\nSkin ForeColor=255\r\nLBxPicture=1\r\n"
                                        "LBxPicture Path=C:\\Skins\\Under Sea\\List.bmp\r\n");
    ASSERT_TRUE(skin.ApplySkin());
    const QRegion shape = main.mask();
    settings.writeSkinPath(root.path(folder));
    ASSERT_TRUE(skin.ApplySkin());
    EXPECT_EQ(state.SkinName, u"Ünder Sea v1"_s);
    EXPECT_EQ(page.Shape_Color[SkinPage::Fore], 255U);
    EXPECT_EQ(main.mask(), shape);
    EXPECT_EQ(imageOf(child(main, "MorphListBox1"), "Picture").convertToFormat(QImage::Format_RGB32),
              QImage(root.path(folder + u"/LIST.BMP"_s)).convertToFormat(QImage::Format_RGB32));

    QFile::remove(root.path(folder + u"/LIST.BMP"_s));
    boxes.expect(u"Error occured:\r\nNumber:         53\r\nDescription:   A Skin file does not exist!\r\n"
                 "File not found\r\nSolution:        Please check the skin folder in question."_s);
    EXPECT_FALSE(skin.ApplySkin());
}

TEST_F(SkinTest, KeepsItsLookWhenTheFolderVanishes)
{
    ASSERT_TRUE(skin.ApplySkin());
    const QImage before = main.picture().toImage();
    QDir(inSkin({})).removeRecursively();
    boxes.expect(u"Err Number: 76\r\nErr Description: Path not found\r\nSolution: Please update the skin "
                 "folder in question."_s);
    splash.reset();
    main.EnlargeMainWindow();
    EXPECT_EQ(main.size(), QSize(447, 289));
    ShapedWindow download(nullptr);
    skin.Load_DL(download); // without a word
    EXPECT_FALSE(skin.ApplySkin());
    EXPECT_FALSE(page.skinLoaded);
    EXPECT_EQ(main.picture().toImage(), before);
    skin.mnuSkin_Click(2);
    EXPECT_TRUE(page.skinLoaded);
}

TEST_F(SkinTest, LeavesAnOpenDownloadAsItIs)
{
    FakeSocketMaker sockets;
    FakeDownloadFiles files;
    FakeClock clock;
    const frm_Winsock::Services services{.client = {sockets, files, clock, pump, boxes},
                                         .state = state,
                                         .settings = settings,
                                         .sounds = sounds,
                                         .screen = screen,
                                         .skin = [this](QWidget& window) { skin.Load_DL(window); }};
    main.show();
    settingsWindow.open({});
    ASSERT_TRUE(skin.ApplySkin());
    frm_Winsock before(services, &main);
    QCoreApplication::processEvents(); // a dialog may come between
    before.loadSkin();
    before.show();
    const auto& cancel = child<ButtonEx>(before, "cmdCancel");
    const QImage face = cancel.SkinUp().toImage();
    const quint32 fore = cancel.ForeColor();
    EXPECT_FALSE(before.mask().isEmpty());

    skin.mnuSkin_Click(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(storedSkin(u"Skin Path"_s), root.path(u"skin/paper"_s));
    EXPECT_EQ(storedSkin(u"Skin Name"_s), u"(missing)"_s) << "the menu leaves it unwritten";
    EXPECT_EQ(state.SkinName, u"paper"_s);
    EXPECT_EQ(cancel.SkinUp().toImage(), face);
    EXPECT_EQ(cancel.ForeColor(), fore);
    for (const auto* label : before.findChildren<QLabel*>())
        EXPECT_EQ(textColor(*label), toQColor(fore)) << qPrintable(label->text());
    for (const char* const name : {"lblCaption", "lblStatus"})
        EXPECT_EQ(textColor(child(main, name)), toQColor(page.Shape_Color[SkinPage::Fore])) << name;
    EXPECT_EQ(textColor(child(settingsWindow, "lbl_Caption")), toQColor(page.Shape_Color[SkinPage::Fore]));
    EXPECT_EQ(child<QListWidget>(settingsWindow, "List1").viewport()->palette().color(QPalette::Base),
              toQColor(page.Shape_Color[SkinPage::Back]));
    EXPECT_NE(child<XP_ProgressBar>(before, "PB").color(), page.Shape_Color[SkinPage::Back]);
    frm_Winsock after(services, nullptr);
    after.loadSkin();
    EXPECT_NE(child<ButtonEx>(after, "cmdCancel").SkinUp().toImage(), face);
    EXPECT_EQ(child<ButtonEx>(after, "cmdCancel").ForeColor(), page.Shape_Color[SkinPage::Fore]);
}

TEST_F(SkinTest, KeepsColorsOfAWindowThatIsMadeOverAnother)
{
    QCoreApplication::processEvents(); // windows meet the toolkit's style before they have a skin
    for (const int index : {2, 1}) {
        ASSERT_TRUE(skin.ApplySkin());
        settingsWindow.showPageOver(main, pages.database);
        QCoreApplication::processEvents();
        auto& rows = child<QListWidget>(settingsWindow, "List1");
        EXPECT_EQ(rows.grab().toImage().pixelColor(50, 200).rgb(),
                  toQColor(page.Shape_Color[SkinPage::Back]).rgb());
        settingsWindow.hide();
        skin.mnuSkin_Click(index);
    }
}

TEST_F(SkinTest, RefreshesItsMenuOnYes)
{
    ASSERT_TRUE(skin.ApplySkin());
    root.makeFolder(u"skin/third"_s);
    boxes.expect(u"Do you wish to Refresh the Skin Menu?"_s, BoxAnswer::No);
    skin.mnuSkin_Refresh_Click();
    EXPECT_EQ(page.availableSkins, u"2"_s);
    boxes.expect(u"Do you wish to Refresh the Skin Menu?"_s, BoxAnswer::Yes);
    skin.mnuSkin_Refresh_Click();
    EXPECT_EQ(page.availableSkins, u"3"_s);
    EXPECT_EQ(menu.findChild<QAction*>(u"mnuSkin(3)"_s)->text(), u"third"_s);
}

} // namespace varnhold::test
