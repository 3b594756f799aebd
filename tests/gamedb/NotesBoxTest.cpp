#include "gamedb/NotesBox.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class NotesBoxTest : public testing::Test
{
protected:
    NotesBoxTest()
    {
        box.resize(300, 120);
        box.show();
    }

    QTextCharFormat formatAt(int position)
    {
        QTextCursor cursor(box.document());
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    }
    QPoint pointAt(int position)
    {
        QTextCursor cursor(box.document());
        cursor.setPosition(position);
        const QRect before = box.cursorRect(cursor);
        return before.center() + QPoint(3, 0);
    }
    void send(QEvent::Type type, const QPoint& point, Qt::MouseButton button)
    {
        QMouseEvent event(type, point, box.viewport()->mapToGlobal(point), button, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &event);
    }
    void moveTo(const QPoint& point) { send(QEvent::MouseMove, point, Qt::NoButton); }

    NotesBox box;
};

} // namespace

TEST_F(NotesBoxTest, UnderlinesLinksInBlueAndLocks)
{
    box.setLocked(false);
    box.setTextRTF(uR"({\rtf1 at {\b http://a.b/c}, or\par\line www.x!})"_s);
    box.Make_Links();
    const QString text = box.toPlainText();
    const auto first = static_cast<int>(text.indexOf("http"_L1));
    for (const int inside : {first, first + 11}) {
        EXPECT_TRUE(formatAt(inside).fontUnderline()) << inside;
        EXPECT_EQ(formatAt(inside).foreground().color(), QColor(0, 0, 255));
    }
    EXPECT_EQ(formatAt(first).fontWeight(), QFont::Bold) << "what it had stays";
    for (const int outside : {first - 1, first + 12})
        EXPECT_FALSE(formatAt(outside).fontUnderline()) << outside;
    EXPECT_TRUE(box.Locked());
    EXPECT_TRUE(box.textCursor().atEnd());

    QTest::keyClicks(&box, u"typed"_s);
    EXPECT_EQ(box.toPlainText(), text);
}

TEST_F(NotesBoxTest, ShowsTheTopOfLongNotes)
{
    box.setTextRTF(u"{\\rtf1 "_s + u"see www.a.b\\par "_s.repeated(300) + u'}');
    box.Make_Links();
    QTest::qWait(1);
    EXPECT_GT(box.verticalScrollBar()->maximum(), 500);
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
    box.verticalScrollBar()->setValue(400);
    QTest::keyClick(&box, Qt::Key_Return); // finds links again, where one reads
    EXPECT_EQ(box.verticalScrollBar()->value(), 400);
    box.setTextRTF(u"{\\rtf1 "_s + u"other\\par "_s.repeated(300) + u'}');
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
}

TEST_F(NotesBoxTest, OpensTheLinkUnderThePointer)
{
    box.setTextRTF(uR"({\rtf1 at http://a.b, or\par www.x\par})"_s);
    box.Make_Links();
    QSignalSpy activated(&box, &NotesBox::linkActivated);
    moveTo(pointAt(5));
    EXPECT_EQ(box.LinkUnderMouse(), u"http://a.b"_s);
    EXPECT_EQ(box.viewport()->cursor().shape(), Qt::PointingHandCursor);
    send(QEvent::MouseButtonRelease, pointAt(5), Qt::RightButton);
    EXPECT_EQ(activated.count(), 0);
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, pointAt(5));
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(activated[0][0].toString(), u"http://a.b"_s);

    for (const QPoint& beside : {pointAt(1), pointAt(15), pointAt(20) + QPoint(200, 0), QPoint(30, 115)}) {
        moveTo(beside);
        EXPECT_EQ(box.LinkUnderMouse(), QString()) << beside.x() << ' ' << beside.y();
        EXPECT_EQ(box.viewport()->cursor().shape(), Qt::IBeamCursor);
    }
    moveTo(pointAt(19));
    EXPECT_EQ(box.LinkUnderMouse(), u"www.x"_s);
    box.setTextRTF({});
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(activated.count(), 1) << "the notes of before";
}

TEST_F(NotesBoxTest, StoresColoursAsTheyAreAndShowsReadableOnes)
{
    QPalette dark = box.palette();
    dark.setColor(QPalette::Base, QColor(10, 16, 30));
    dark.setColor(QPalette::Text, Qt::white);
    box.setPalette(dark);
    box.setTextRTF(
        uR"({\rtf1{\colortbl;\red0\green0\blue0;\red120\green0\blue0;}\cf1 black \cf2 dark\cf1  www.x\par})"_s);
    box.Make_Links();
    EXPECT_EQ(formatAt(0).foreground().color(), QColor(Qt::black));
    EXPECT_EQ(formatAt(12).foreground().color(), QColor(0, 0, 255));
    EXPECT_TRUE(box.TextRTF().contains("\\blue255"_L1));
    const QImage shown = box.viewport()->grab().toImage();
    int lightest = 0;
    int bluest = 0;
    int reddest = 0;
    for (int i = 0; i < shown.width() * shown.height(); ++i) {
        const QRgb pixel = shown.pixel(i % shown.width(), i / shown.width());
        lightest = std::max(lightest, qRed(pixel));
        reddest = std::max(reddest, qRed(pixel) - qBlue(pixel));
        bluest = std::max(bluest, qBlue(pixel) - qRed(pixel));
    }
    EXPECT_GT(lightest, 200) << "black shows light";
    EXPECT_GT(bluest, 60) << "links still show blue";
    EXPECT_GT(reddest, 110) << "the colour that touches them, too";
}

TEST_F(NotesBoxTest, ShowsReadableLinksInLongNotesToo)
{
    // Notes of this length are laid out bit by bit, the last of them after they show.
    QPalette dark = box.palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::black);
    box.setPalette(dark);
    box.setTextRTF(u"short"_s);
    box.Make_Links();
    QTest::qWait(20);
    box.setTextRTF(u"www.example.org/link\n"_s.repeated(3000));
    box.Make_Links();
    QTest::qWait(50);
    const QImage shown = box.viewport()->grab().toImage();
    int reddest = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x)
            reddest = std::max(reddest, qRed(shown.pixel(x, y)));
    }
    EXPECT_GT(reddest, 80);
}

} // namespace varnhold::test
