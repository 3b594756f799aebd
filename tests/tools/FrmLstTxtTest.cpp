#include "tools/frmLstTxt.h"
#include "platform/richtext/RtfWriter.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/Sounds.h"
#include "support/FakeClipboard.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakeScreen.h"
#include "support/FakeShell.h"
#include "support/FakeSoundPlayer.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"
#include "tools/ReportBox.h"
#include "tools/ReportFile.h"
#include "tools/ReportHost.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>

#include <memory>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class ReportWindow : public testing::Test, public ReportHost
{
protected:
    void loadTitle(const QString& gameId, const QString& name) override
    {
        loaded.append(gameId + u' ' + name);
        window->setEnabled(false);
        window.reset(); // closed while the lookup pumped
    }
    void deleteLink(const LinkRow& link, const std::function<void()>& removeRow) override
    {
        loaded.append(link[LinkRow::Url]);
        removeRow();
    }
    void bringMainToFront() override { isMainInFront = true; }
    void openReportMenu(const QPoint&) override {}
    void openLinksMenu(const QPoint&) override {}
    void markTools(bool shown) override { tools = shown; }
    [[nodiscard]] std::array<ColorValue, 2> balloonColors() const override { return {0xFFFFFF, 0x101010}; }
    void unloaded() override { window.release()->deleteLater(); }

    template <typename Control> Control& control(const char* name)
    {
        return *window->findChild<Control*>(QLatin1StringView(name));
    }
    void goTo(const QString& line)
    {
        control<QLineEdit>("txtLine").setText(line);
        QTest::keyClick(&control<QLineEdit>("txtLine"), Qt::Key_Return);
    }
    [[nodiscard]] QString panels()
    {
        QTest::qWait(1);
        return control<QLabel>("StatusBar1(3)").text() + u' ' + control<QLabel>("StatusBar1(4)").text();
    }

    TempRoot root;
    Paths paths = root.paths();
    ApplicationState state;
    SettingsFile file{paths, state};
    Settings settings{file};
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakeMessageBoxes boxes;
    FakeShell shell;
    FakeClipboard clipboard;
    FakeScreen screen;
    QStringList loaded;
    bool isMainInFront = false;
    bool tools = false;
    std::unique_ptr<frmLstTxt> window = std::make_unique<frmLstTxt>(
        frmLstTxt::Services{paths, file, boxes, sounds, shell, clipboard, screen, u"Varnhold"_s,
                            [](const QString&) { return QIcon(); }},
        *this, WindowPlace{10, 10, 400, 300});
};

} // namespace

TEST_F(ReportWindow, CountsAndFindsTheLinesThatAreSeen)
{
    const QString wide = u"wide words "_s.repeated(40);
    window->showReport({u"BLUS1"_s, u"Name"_s}, u"one\r\n"_s + wide + u"\r\n\tthree\r\n"_s);
    auto& box = control<ReportBox>("RTFbox");
    EXPECT_EQ(panels(), u"Line: 1 Col: 1"_s);
    (void)box.document()->documentLayout()->documentSize();
    const QTextLayout& wrapped = *box.document()->findBlockByNumber(1).layout();
    const int lines = wrapped.lineCount();
    ASSERT_GT(lines, 3);

    goTo(u"3"_s);
    EXPECT_EQ(box.textCursor().position(), 4 + wrapped.lineAt(1).textStart());
    EXPECT_EQ(panels(), u"Line: 3 Col: 1"_s);
    goTo(QString::number(lines + 2));
    QTest::keyClick(&box, Qt::Key_Right);
    EXPECT_EQ(panels(), u"Line: %1 Col: 2"_s.arg(lines + 2)) << "a tab is one column";
    for (const QString& nowhere : {QString(), u"99999999999"_s, u"words"_s, u"0"_s}) {
        goTo(nowhere);
        EXPECT_EQ(box.textCursor().positionInBlock(), nowhere == u"0" ? 0 : 1) << nowhere.toStdString();
    }
    for (const QString& end : {u"-5"_s, u"500"_s, u"2147483647"_s}) {
        goTo(u"1"_s);
        goTo(end);
        EXPECT_TRUE(box.textCursor().atEnd()) << end.toStdString();
    }
    window->resize(900, 300);
    EXPECT_LT(wrapped.lineCount(), lines);
    EXPECT_EQ(panels(), u"Line: %1 Col: 1"_s.arg(wrapped.lineCount() + 3));
    QTest::keyClick(&box, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(panels(), u"Line: 2 Col: 1"_s);
}

TEST_F(ReportWindow, TakesDigitsAndTellsOfOtherCharacters)
{
    window->showReport({u"BLUS1"_s, {}}, u"x"_s);
    auto& line = control<QLineEdit>("txtLine");
    boxes.expect(u"Invalid Character.\rPlease enter 0-9"_s);
    QTest::keyClicks(&line, u"12a"_s);
    QTest::keyClick(&line, Qt::Key_Escape);
    QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(control<QPushButton>("Command1").toolTip(), u"Goto Line: 12"_s);
    EXPECT_EQ(line.toolTip(), u"ENTER: 12"_s);

    window->mnuLTTools_Click();
    EXPECT_FALSE(tools);
    window->showNotes({u"BLUS1"_s, u"N"_s}, u"{\\rtf1 note}"_s, 0xFFFFFF, 0x402020);
    window->mnuLTTools_Click();
    EXPECT_FALSE(tools) << "notes have no tools";
    auto& box = control<ReportBox>("RTFbox");
    EXPECT_TRUE(box.textCursor().atEnd());
    window->showReport({u"BLUS1"_s, {}}, {});
    EXPECT_TRUE(tools);
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(0x202040)) << "the ground of the notes stays";
}

TEST_F(ReportWindow, ViewsWhatATerminalWouldWriteAndStaysWhenItCannot)
{
    const QString text = u"BLUS1-[<b>\tx\u202e {\\}]\r\n\r\nPkg:\t01\n02\r\n"_s;
    window->showReport({u"BLUS1"_s, {}}, {});
    auto& view = control<QPushButton>("Command2");
    QTest::mouseClick(&view, Qt::LeftButton);
    EXPECT_EQ(shell.opened, QStringList()) << "nothing to view";

    window->showReport({u"../BLUS1"_s, {}}, text);
    boxes.expect(
        u"Err Number:\t75\r\nErr Source:\tVarnhold\r\nErr Description: \tPath/File access error\r\n"_s);
    QTest::mouseClick(&view, Qt::LeftButton);
    EXPECT_TRUE(window->isVisible());

    window->showReport({u"BLUS1"_s, {}}, text);
    QTest::mouseClick(&view, Qt::LeftButton);
    EXPECT_EQ(root.read(u"BLUS1.rtf"_s), writeRtf(reportContents(text)));
    EXPECT_TRUE(isMainInFront);
    EXPECT_EQ(window, nullptr);
}

TEST_F(ReportWindow, CopiesDeletesAndLoadsTheSelectedLink)
{
    window->showLinks({{{u"BLUS12345 and more"_s, u"Name"_s, {}, {}, {}, {}, u"http://h"_s}}, {{{u"AB"_s}}}},
                      u"Found - 2"_s);
    EXPECT_EQ(control<QLabel>("StatusBar1(1)").text(), u"Record(s) 2"_s);
    EXPECT_EQ(window->windowTitle(), u"Found - 2"_s);
    auto& list = control<LinksView>("lstVwLinks");
    window->mnuLstVwCpy_Click();
    window->mnuLstVwRS_Click();
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(clipboard.texts, QStringList()) << "no row is selected";

    list.setCurrentIndex(list.model()->index(1, 0));
    window->mnuLstVwCpy_Click();
    EXPECT_EQ(clipboard.texts, QStringList{QString()});
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::qWait(1);
    EXPECT_EQ(list.model()->rowCount(), 1);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                       list.visualRect(list.model()->index(0, 1)).center());
    QTest::qWait(1);
    EXPECT_EQ(loaded, (QStringList{QString(), u"BLUS12345 Name"_s}));
    EXPECT_EQ(window, nullptr);
}

} // namespace varnhold::test
