#include "app/Program.h"
#include "app/main/UpdateListView.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "platform/DesktopTrash.h"
#include "platform/TcpSocket.h"
#include "platform/richtext/RtfReader.h"
#include "support/FakeClipboard.h"
#include "support/FakeColorDialog.h"
#include "support/FakeFileDialogs.h"
#include "support/FakeFontDialog.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakeScreen.h"
#include "support/FakeShell.h"
#include "support/FakeSoundPlayer.h"
#include "support/PrintText.h"
#include "support/PumpUntil.h"
#include "support/RunningService.h"
#include "support/TempRoot.h"
#include "support/TestDatabase.h"
#include "tools/ReportBox.h"
#include "tools/frmLstTxt.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>
#include <optional>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

const QString package = u"UP0001-BLUS30443_00-VARNHOLDSAMPLE00-A0102-V0100"_s;

/// The whole program with its real windows, sockets and files, on a sample service.
class Journey : public testing::Test
{
protected:
    void start(const QByteArray& keys)
    {
        root.write(u"Settings.ini"_s, "[Settings]\r\nClick Sounds=0\r\nFade Out=0\r\nSaveDir Path=" +
                                          root.path(u"dl"_s).toUtf8() + "\r\n" + keys);
        root.makeFolder(u"dl"_s);
        program.emplace(root.paths(), World{.boxes = boxes,
                                            .dialogs = dialogs,
                                            .colors = colors,
                                            .fonts = fonts,
                                            .clipboard = clipboard,
                                            .shell = shell,
                                            .player = player,
                                            .sockets = sockets,
                                            .screen = screen,
                                            .trash = &trash,
                                            .isFirst = [] { return true; },
                                            .activatePrevious = [] { return false; },
                                            .findHosts = [this] { return hosts(); },
                                            .endProcess = [this] { ended = true; }});
        ASSERT_TRUE(program->start());
    }
    [[nodiscard]] Hosts hosts() const
    {
        Hosts found;
        for (std::size_t i = 0; i < found.servers.size(); ++i) {
            const bool secure = i == 0 || i == 3 || i == 5;
            found.servers.at(i) = {secure ? service.httpsAuthority() : service.httpAuthority(),
                                   service.caFile(), false};
        }
        return found;
    }
    [[nodiscard]] frmMain& window() { return program->mainWindow(); }
    template <typename Widget> Widget& control(const char* name)
    {
        return *window().findChild<Widget*>(QLatin1StringView(name));
    }
    [[nodiscard]] QString icon(int row)
    {
        const auto* model = control<UpdateListView>("ListView1").model();
        return model->index(row - 1, 0).data(UpdateList::IconKeyRole).toString();
    }
    [[nodiscard]] int rows() { return control<UpdateListView>("ListView1").model()->rowCount(); }
    void lookUp(const QString& id)
    {
        QTest::keyClicks(&control<QLineEdit>("txtGameID"), id);
        QTest::keyClick(&control<QLineEdit>("txtGameID"), Qt::Key_Return);
    }
    [[nodiscard]] QPoint rowCentre(int row)
    {
        auto& view = control<UpdateListView>("ListView1");
        return view.visualRect(view.model()->index(row - 1, 0)).center();
    }
    [[nodiscard]] int downloadWindows()
    {
        int count = 0;
        for (const QWidget* top : QApplication::topLevelWidgets())
            count += top->objectName() == "frm_Winsock"_L1 && top->isVisible() ? 1 : 0;
        return count;
    }

    void startBatch()
    {
        lookUp(u"BLES01902"_s);
        ASSERT_EQ(rows(), 8);
        for (const char* entry : {"mnuLVCheckBxs", "mnuLVSelectAll", "mnuChkDLoad"})
            program->commands().run(QLatin1StringView(entry));
        EXPECT_FALSE(control<UpdateListView>("ListView1").isEnabled());
        EXPECT_FALSE(window().games().isEnabled());
    }
    [[nodiscard]] QStringList files(const QString& folder, const QString& kind) const
    {
        return QDir(root.path(folder)).entryList({kind}, QDir::Files);
    }

    RunningService service;
    TempRoot root;
    TestDatabase database{root.path(u"GameDB.mdb"_s)};
    FakeMessageBoxes boxes;
    FakeFileDialogs dialogs;
    FakeColorDialog colors;
    FakeFontDialog fonts;
    FakeClipboard clipboard;
    FakeShell shell;
    FakeSoundPlayer player;
    TcpSocketMaker sockets;
    FakeScreen screen;
    DesktopTrash trash;
    bool ended = false;
    std::optional<Program> program;
};

/// The window of that class, as long as there is one.
template <typename Window> Window* topLevel()
{
    for (QWidget* const top : QApplication::topLevelWidgets()) {
        if (auto* const found = qobject_cast<Window*>(top))
            return found;
    }
    return nullptr;
}

} // namespace

TEST_F(Journey, TypesAnIdReadsThePackagesAndDownloadsOne)
{
    start("Exit=0\r\n");
    lookUp(u"blus30443"_s);
    EXPECT_EQ(rows(), 4);
    EXPECT_EQ(window().info(), u"Ashgrove Circuit"_s);
    EXPECT_EQ(control<QLabel>("lblStatus").text(), u"Done"_s);
    EXPECT_EQ(icon(2), u"pkg"_s);

    auto& view = control<UpdateListView>("ListView1");
    const QString target = root.path(u"dl/chosen.pkg"_s);
    dialogs.answer(target);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, rowCentre(2));
    EXPECT_EQ(dialogs.asked.front().fileName, package + u".pkg"_s);
    EXPECT_EQ(icon(2), u"pkg-dl"_s);
    EXPECT_EQ(control<QLabel>("lblCnt").text(), u"1"_s);
    EXPECT_EQ(downloadWindows(), 1);
    ASSERT_TRUE(pumpUntil([&] { return control<QLabel>("lblCnt").text() == u"0"_s; }));
    EXPECT_EQ(QFile(target).size(), 4000000);
    EXPECT_TRUE(QFile::exists(root.path(u"dl/chosen.txt"_s)));
    EXPECT_FALSE(QFile::exists(root.path(u"dl/chosen.temp"_s)));
    EXPECT_TRUE(icon(2) == u"pkg-plus"_s || icon(2) == u"pkg-red"_s)
        << "which of the two depends on how long it took";
    EXPECT_EQ(downloadWindows(), 0);
}

TEST_F(Journey, DownloadsFromTheMenuIntoTheTitlesFolderAndMarksItNextTime)
{
    start("Exit=0\r\nUse DLDir=1\r\nCreate GNFolder=1\r\n");
    lookUp(u"BLUS30443"_s);
    auto& view = control<UpdateListView>("ListView1");
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, rowCentre(2));
    auto* menu = program->menus().findChild<QMenu*>(u"mnuLView"_s);
    ASSERT_TRUE(menu->isVisible());
    menu->setActiveAction(program->menus().findChild<QAction*>(u"mnuDLoad"_s));
    QTest::keyClick(menu, Qt::Key_Return);
    ASSERT_TRUE(pumpUntil([&] { return control<QLabel>("lblCnt").text() == u"0"_s; }));
    const QString folder = root.path(u"dl/BLUS30443-[Ashgrove Circuit]/"_s);
    EXPECT_EQ(QFile(folder + package + u".pkg"_s).size(), 4000000);
    QTest::mouseClick(&control<ButtonEx>("btnFetch"), Qt::LeftButton);
    EXPECT_EQ(icon(2), u"pkg-plus"_s);
    EXPECT_EQ(icon(3), u"pkg"_s);
}

TEST_F(Journey, EndsWhileALookupWaitsAndADownloadRuns)
{
    start("Exit=1\r\nUse DLDir=1\r\n");
    lookUp(u"BLUS30443"_s);
    service.misbehave(u"*A0104*"_s, u"slow-drip:1"_s);
    service.misbehave(u"*BLES00256*"_s, u"slow-drip:1"_s);
    auto& view = control<UpdateListView>("ListView1");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, rowCentre(4));
    program->commands().run(u"mnuDLoad"_s);
    ASSERT_EQ(downloadWindows(), 1);

    boxes.expect(u"Are you sure you want to exit?"_s, u"Exit?"_s, BoxAnswer::No);
    boxes.expect(u"Are you sure you want to exit?"_s, u"Exit?"_s, BoxAnswer::Yes);
    bool waiting = false;
    QTimer::singleShot(0, &window(), [&] {
        waiting = true;
        control<QLineEdit>("txtGameID").clear();
        lookUp(u"BLES00256"_s);
        waiting = false;
    });
    QTimer::singleShot(300, &window(), [&] {
        EXPECT_TRUE(waiting) << "the lookup is to hang";
        auto& exit = control<ButtonEx>("btn_WinState(1)");
        QTest::mouseClick(&exit, Qt::LeftButton);
        EXPECT_TRUE(exit.isEnabled());
        EXPECT_EQ(downloadWindows(), 1);
        QTest::mouseClick(&exit, Qt::LeftButton);
    });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(waiting) << "the lookup left its wait";
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(downloadWindows(), 0);
    EXPECT_TRUE(QFile::exists(root.path(u"dl/UP0001-BLUS30443_00-VARNHOLDSAMPLE00-A0104-V0100.txt"_s)));
}

TEST_F(Journey, ShowsTheRawDocumentAndOpensItInTheBrowser)
{
    start("Exit=0\r\n");
    lookUp(u"BLUS30443"_s);
    program->commands().run(u"mnuRaw"_s);
    EXPECT_TRUE(window().showsPage());
    program->commands().run(u"mnuWebOpen"_s);
    EXPECT_EQ(shell.opened, QStringList{u"https://"_s + service.httpsAuthority() +
                                        u"/tpl/np/BLUS30443/BLUS30443-ver.xml"_s});
    EXPECT_FALSE(ended);
}

TEST_F(Journey, RemembersTheLinksOfALookupOnce)
{
    database.addGames(u"PS3Games"_s, {{u"BLUS30443"_s, u"My Ashgrove"_s}, {u"BLES00256"_s, u"Another"_s}});
    start("Exit=0\r\n");
    EXPECT_EQ(control<QLabel>("lblBlank").text(), u"List Count: 2"_s);
    lookUp(u"BLUS30443"_s);
    ASSERT_EQ(rows(), 4);
    const auto count = [this] { return database.column(u"SELECT count(*) FROM PS3Links"_s); };
    EXPECT_EQ(count(), QStringList{u"4"_s});
    EXPECT_EQ(database.column(u"SELECT GameID || GameName || PKG || FW || (SHA1 <> '') || (SIZE <> '') FROM "
                              "PS3Links WHERE Link LIKE '%A0102%'"_s),
              QStringList{u"BLUS30443Ashgrove Circuit01.0202.700011"_s});

    database.execute(u"UPDATE PS3Links SET GameName = 'old', SIZE = 'old'"_s);
    QTest::mouseClick(&control<ButtonEx>("btnFetch"), Qt::LeftButton);
    EXPECT_EQ(count(), QStringList{u"4"_s});
    EXPECT_EQ(database.column(u"SELECT count(*) FROM PS3Links WHERE GameName = 'old' OR SIZE = 'old'"_s),
              QStringList{u"0"_s})
        << "with the newest values";

    database.execute(u"DELETE FROM PS3Links"_s);
    program->settingsWindow().findChild<QCheckBox*>(u"chk_DBLinks"_s)->setChecked(false);
    QTest::mouseClick(&control<ButtonEx>("btnFetch"), Qt::LeftButton);
    EXPECT_EQ(rows(), 4);
    EXPECT_EQ(count(), QStringList{u"0"_s});
    EXPECT_TRUE(database.isSound());
}

TEST_F(Journey, MakesAReportEditsItAndOpensItsFile)
{
    start("Exit=0\r\nListText0=1\r\nListText1=1\r\nListText2=0\r\nListText3=0\r\nListText4=0\r\n"
          "ListText5=0\r\nListText6=1\r\n[Position]\r\nRTFbox X=1500\r\nRTFbox Y=900\r\n");
    const auto report = [] { return topLevel<frmLstTxt>(); };
    lookUp(u"BLUS30443"_s);
    program->commands().run(u"mnuLVCopyLink"_s);
    EXPECT_EQ(clipboard.texts, QStringList()) << "no row is selected";

    program->commands().run(u"mnuLVListText"_s);
    auto& box = *report()->findChild<ReportBox*>();
    const QString lines = u"BLUS30443-[Ashgrove Circuit]\nPkg:\t01.01\nPkg:\t01.02\n"_s;
    EXPECT_TRUE(box.plainText().startsWith(lines)) << box.plainText().toStdString();
    EXPECT_EQ(report()->windowTitle(), u"Ashgrove Circuit"_s);
    EXPECT_EQ(report()->toolTip(), u"BLUS30443-[Ashgrove Circuit]"_s);
    EXPECT_TRUE(program->menus().entry(u"mnuLTTools"_s).isChecked());

    QTest::keyClicks(&box, u"Mine "_s);
    program->commands().run(u"mnuLTUndo"_s);
    EXPECT_TRUE(box.plainText().startsWith(lines));
    box.undo();
    EXPECT_TRUE(box.plainText().startsWith(lines)) << "what filled it is no step to take back";
    QTest::keyClicks(&box, u"Mine "_s);
    program->commands().run(u"mnuLTSelectAll"_s);
    box.setTextColor(Qt::red);
    QTest::keyClick(&box, Qt::Key_I, Qt::ControlModifier);
    const QPoint corner = report()->pos();
    QTest::mouseClick(report()->findChild<QPushButton*>(u"Command2"_s), Qt::LeftButton);
    const QString path = root.path(u"BLUS30443.rtf"_s);
    EXPECT_EQ(shell.opened, QStringList{path});
    const RichText saved = readRtf(root.read(u"BLUS30443.rtf"_s));
    EXPECT_TRUE(saved.plainText().startsWith(u"Mine "_s + lines));
    EXPECT_EQ(saved.paragraphs.front().runs.front().format.color, std::optional<quint32>(0));
    EXPECT_TRUE(saved.paragraphs.front().runs.front().format.italic);
    EXPECT_TRUE(root.read(u"Settings.ini"_s).contains("RTFbox W"));
    QTest::qWait(1);
    EXPECT_EQ(report(), nullptr) << "gone, not left invisible";

    for (int opening = 0; opening < 10; ++opening) {
        program->commands().run(u"mnuLVListText"_s);
        EXPECT_EQ(report()->pos(), corner) << opening;
        report()->close();
        QTest::qWait(1);
    }
}

TEST_F(Journey, ReloadsAndClearsFromTheFootAndTheMenu)
{
    database.addGames(u"PS3Games"_s, {{u"BLUS30443"_s, u"My Ashgrove"_s}});
    start("Exit=0\r\nDB Links=0\r\n");
    lookUp(u"BLUS30443"_s);
    database.addGames(u"PS3Games"_s, {{u"BLES00256"_s, u"Another"_s}});
    QTest::mouseClick(&control<ButtonEx>("CmdRefresh"), Qt::LeftButton);
    EXPECT_EQ(window().games().ListCount(), 2);
    EXPECT_EQ(window().titles().row(0), u"Another"_s);
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(window().gameIdText(), QString());

    lookUp(u"BLUS30443"_s);
    QTest::mouseClick(&control<ButtonEx>("cmdClear"), Qt::LeftButton);
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(window().info(), QString());
    EXPECT_EQ(window().games().ListCount(), 2);

    EXPECT_TRUE(window().games().ShowItemImages());
    program->commands().run(u"mnuLBIcons"_s);
    EXPECT_FALSE(window().games().ShowItemImages());
    EXPECT_FALSE(program->menus().entry(u"mnuLBIcons"_s).isChecked());
    EXPECT_TRUE(program->settingsWindow().findChild<QCheckBox*>(u"chk_Icons"_s)->isChecked());
}

TEST_F(Journey, WritesANewEntryWithNotesAndAPictureAndEditsIt)
{
    database.addGames(u"PS3Games"_s, {{u"BLUS30443"_s, u"My Ashgrove"_s}});
    start("Exit=0\r\nDB Table=1\r\n");
    QTest::mouseClick(&control<ButtonEx>("CmdNewRecord"), Qt::LeftButton);
    QWidget* editor = nullptr;
    for (QWidget* const top : QApplication::topLevelWidgets()) {
        if (top->objectName() == "frmDB"_L1)
            editor = top;
    }
    ASSERT_TRUE(editor != nullptr && editor->isVisible());
    const auto part = [editor](const char* name) {
        return editor->findChild<QWidget*>(QLatin1StringView(name));
    };
    QTest::keyClicks(part("txtGameID"), u"npeb00001"_s);
    QTest::keyClicks(part("txtGameName"), u"Mine"_s);
    auto* const notes = qobject_cast<QTextEdit*>(part("txtGameNotes"));
    QTest::keyClicks(notes, u"bold"_s);
    notes->selectAll();
    QTest::mouseClick(part("cmd_Collapse(0)"), Qt::LeftButton);
    QTest::mouseClick(part("cmd_Tools(6)"), Qt::LeftButton);
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_TRUE(editor->isVisible()) << "something has changed";
    QPixmap picture(20, 30);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(root.path(u"p.png"_s)));
    dialogs.answer(root.path(u"p.png"_s));
    QTest::mouseClick(part("CmdBrowse"), Qt::LeftButton);
    boxes.expect(u"Add NEW DB Entry to PS3Games?"_s, u"New Entry"_s, BoxAnswer::Yes);
    boxes.expect(u"Database has been updated."_s, u"Add New Record"_s);
    QTest::mouseClick(part("CmdAdd"), Qt::LeftButton);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_EQ(window().games().ListCount(), 2);
    const QString entry = u" FROM PS3Games WHERE GameName = 'Mine'"_s;
    EXPECT_TRUE(database.bytes(u"SELECT GameNotes"_s + entry).contains("\\b"));
    const QByteArray stored = database.bytes(u"SELECT GameImage"_s + entry);
    EXPECT_TRUE(stored.startsWith("BM") && stored.endsWith('\0'));

    // Chosen, renamed, and deleted.
    window().games().setListIndex(1);
    Q_EMIT window().games().Click();
    QTest::mouseClick(&control<ButtonEx>("cmdEdit"), Qt::LeftButton);
    EXPECT_EQ(notes->toPlainText(), u"bold"_s);
    QTest::keyClicks(part("txtGameID"), u"9"_s);
    boxes.expect(u"Database has been updated."_s);
    QTest::mouseClick(part("cmdUpdate"), Qt::LeftButton);
    EXPECT_EQ(database.column(u"SELECT GameID"_s + entry), QStringList{u"NPEB000019"_s});
    EXPECT_EQ(database.bytes(u"SELECT GameImage"_s + entry), stored);
    QTest::mouseClick(&control<ButtonEx>("CmdRefresh"), Qt::LeftButton);
    window().games().setListIndex(0);
    boxes.expect(u"This will permanently delete\r\n\r\n'NPEB000019'\r\n\r\nDo you want to proceed?"_s,
                 u"Delete Record"_s, BoxAnswer::Yes);
    boxes.expect(u"Command completed successfully!"_s, u"NPEB000019 - Record Deleted!"_s);
    QTest::mouseClick(&control<ButtonEx>("CmdDelete"), Qt::LeftButton);
    EXPECT_EQ(database.column(u"SELECT GameID FROM PS3Games"_s), QStringList{u"BLUS30443"_s});
    EXPECT_EQ(window().titles().count(), 1);
}

TEST_F(Journey, FetchesAllPackagesOfATitleAsABatch)
{
    start("Exit=0\r\nUse DLDir=1\r\nCreate GNFolder=1\r\nDL Max=4\r\n");
    startBatch();
    int most = 0;
    auto& view = control<UpdateListView>("ListView1");
    constexpr int patience = 60'000; // ms: a tick lasts a second
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            most = qMax(most, downloadWindows());
            return view.isEnabled();
        },
        patience));
    EXPECT_EQ(most, 4);
    EXPECT_TRUE(window().games().isEnabled());
    EXPECT_EQ(control<QLabel>("lblCnt").text(), u"0"_s);
    const QString folder = u"dl/BLES01902-[Northern Fathoms]"_s;
    EXPECT_EQ(control<QLabel>("lblStatus").text(), root.path(folder));
    ASSERT_EQ(files(folder, u"*.pkg"_s).size(), 8);
    EXPECT_EQ(files(folder, u"*.txt"_s).size(), 8);
    EXPECT_EQ(files(folder, u"*.temp"_s), QStringList());
    for (const QString& name : files(folder, u"*.pkg"_s)) {
        const QByteArray bytes = root.read(folder + u'/' + name);
        EXPECT_EQ(bytes.last(32).first(20),
                  QCryptographicHash::hash(bytes.chopped(32), QCryptographicHash::Sha1))
            << qPrintable(name);
    }
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(icon(row), u"pkg-plus"_s) << row;
        EXPECT_EQ(view.model()->index(row - 1, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked) << row;
    }
}

TEST_F(Journey, LeavesInTheMiddleOfABatch)
{
    start("Exit=0\r\nUse DLDir=1\r\nDL Max=2\r\n");
    service.misbehave(u"*-A01*"_s, u"slow-drip:1"_s);
    startBatch();
    QTimer::singleShot(1500, &window(), [&] {
        EXPECT_EQ(downloadWindows(), 2);
        QTest::mouseClick(&control<ButtonEx>("btn_WinState(1)"), Qt::LeftButton);
    });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(downloadWindows(), 0);
    EXPECT_EQ(files(u"dl"_s, u"*.txt"_s).size(), 2) << "no third one began behind the closed ones";
    EXPECT_EQ(files(u"dl"_s, u"*.pkg"_s), QStringList());
}

TEST_F(Journey, RecyclesAPackageThatCanBeBroughtBack)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(root.path(u"."_s)));
    qputenv("XDG_DATA_HOME", QFile::encodeName(root.path(u"data"_s)));
    const QString path = root.write(u"dl/"_s + package + u".pkg"_s, "bytes");
    root.write(u"dl/"_s + package + u".txt"_s, "");
    start("Exit=0\r\nUse DLDir=1\r\n");
    lookUp(u"BLUS30443"_s);
    QTest::mouseClick(control<UpdateListView>("ListView1").viewport(), Qt::LeftButton, {}, rowCentre(2));
    const QString sure =
        u"Are you sure you want to send\r\n'"_s + package + u".pkg'\r\nto the Recycle Bin?"_s;
    boxes.expect(sure, BoxAnswer::No);
    program->commands().run(u"mnuKill"_s);
    EXPECT_TRUE(QFile::exists(path));
    boxes.expect(sure, BoxAnswer::Yes);
    boxes.expect(u"Would you also like to Delete \r\n\r\n"_s + package + u".txt ?"_s, BoxAnswer::Yes);
    program->commands().run(u"mnuKill"_s);
    EXPECT_EQ(files(u"dl"_s, u"*"_s), QStringList());
    EXPECT_EQ(icon(2), u"pkg"_s);
    const QString inTrash = u"data/Trash/files/"_s + package + u".pkg"_s;
    EXPECT_EQ(root.read(inTrash), "bytes");
    EXPECT_TRUE(root.read(u"data/Trash/info/"_s + package + u".pkg.trashinfo"_s)
                    .contains("Path=" + QFile::encodeName(path).toPercentEncoding("/") + '\n'));
    EXPECT_TRUE(QFile::rename(root.path(inTrash), path));
    QTest::mouseClick(&control<ButtonEx>("btnFetch"), Qt::LeftButton);
    EXPECT_EQ(icon(2), u"pkg"_s) << "without its marker";
    qunsetenv("XDG_DATA_HOME");
    qputenv("HOME", home);
}

TEST_F(Journey, SearchesChoosesAndCopiesToThePersonalList)
{
    database.addGames(u"PS3Games"_s, {{u"BLUS30443"_s, u"My & Ashgrove"_s}, {u"BLES00256"_s, u"Another"_s}});
    start("Exit=0\r\nDB Links=0\r\n");
    QTest::mouseClick(&control<ButtonEx>("btn_Tools(0)"), Qt::LeftButton);
    const QWidgetList tops = QApplication::topLevelWidgets();
    const auto found = std::ranges::find(tops, u"frmSearch"_s, &QWidget::objectName);
    ASSERT_NE(found, tops.end());
    QWidget& search = **found;
    EXPECT_TRUE(search.isVisible());
    auto& text = *search.findChild<QLineEdit*>(u"txt_Search"_s);
    auto& ids = *search.findChild<QListView*>(u"List1"_s);
    auto& names = *search.findChild<QListView*>(u"List2"_s);
    const auto caption = [&] { return search.findChild<QLabel*>(u"lblCaption"_s)->text(); };
    QTest::mouseClick(&text, Qt::LeftButton); // takes "SEARCH" away
    QTest::keyClicks(&text, u"ash"_s);
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(caption(), u"Found - 1 in PS3Games - GameName - Ascending"_s);

    const QPoint row = names.visualRect(names.model()->index(0, 1)).center();
    QMouseEvent moved(QEvent::MouseMove, row, names.viewport()->mapToGlobal(row), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(names.viewport(), &moved);
    EXPECT_EQ(ids.currentIndex().row(), 0);
    EXPECT_EQ(names.viewport()->toolTip(), u"BLUS30443-[My & Ashgrove]"_s);
    QTest::keyClick(&ids, Qt::Key_Return);
    EXPECT_EQ(window().gameIdText(), u"BLUS30443"_s);
    EXPECT_EQ(window().games().Text(), u"BLUS30443"_s);
    EXPECT_EQ(rows(), 4);

    QContextMenuEvent wanted(QContextMenuEvent::Mouse, row, names.viewport()->mapToGlobal(row));
    QCoreApplication::sendEvent(names.viewport(), &wanted);
    EXPECT_EQ(program->menus().entry(u"mnuSrchCopy"_s).text(), u"Copy - BLUS30443-[My && Ashgrove]"_s);
    program->commands().run(u"mnuSrchCopy"_s);
    EXPECT_EQ(clipboard.texts, QStringList{u"BLUS30443-[My & Ashgrove]"_s});
    boxes.expect(u"Transfer Info to Personal DB?\r\n\r\nBLUS30443-[My & Ashgrove]"_s, BoxAnswer::Yes);
    boxes.expect(u"Personal Database has been updated.\r\n\r\nGameID: BLUS30443\r\nGameName: My & "
                 "Ashgrove\r\nWould you like to reload Personal Database?"_s,
                 BoxAnswer::No);
    program->commands().run(u"mnuCpy"_s);
    EXPECT_EQ(database.column(u"SELECT GameID FROM PS3Personal"_s), QStringList{u"BLUS30443"_s});

    program->commands().run(u"mnuImport"_s);
    EXPECT_EQ(caption(), u"Import: "_s);
    EXPECT_EQ(ids.model()->rowCount(), 0);
    EXPECT_FALSE(text.isVisible());
    program->commands().run(u"mnuSearch"_s);
    EXPECT_TRUE(text.isVisible());
}

} // namespace varnhold::test
