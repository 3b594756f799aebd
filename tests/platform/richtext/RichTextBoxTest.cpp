#include "platform/richtext/RichTextBox.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(RichTextBox, TakesRichTextAndPlainText)
{
    RichTextBox box;
    box.setTextRTF(u"{\\rtf1 one {\\b two}\\par \u2122 \u4e00\\par}"_s);
    EXPECT_EQ(box.toPlainText(), u"one two\n\u2122 \u4e00"_s) << "characters as they are keep their meaning";
    RichTextBox other;
    other.setTextRTF(box.TextRTF());
    EXPECT_EQ(other.toPlainText(), box.toPlainText());
    EXPECT_EQ(other.TextRTF(), box.TextRTF());
    box.setTextRTF(u"caf\u00e9 {not} rich\n\u4e00"_s);
    EXPECT_EQ(box.toPlainText(), u"caf\u00e9 {not} rich\n\u4e00"_s);
    EXPECT_FALSE(box.document()->isUndoAvailable());

    box.setTextRTF({});
    EXPECT_EQ(box.toPlainText(), QString());
    EXPECT_TRUE(box.TextRTF().startsWith("{\\rtf1"_L1));
    other.setTextRTF(box.TextRTF());
    EXPECT_EQ(other.toPlainText(), QString());
}

TEST(RichTextBox, TabsOfAHangingParagraphReachItsIndent)
{
    RichTextBox box;
    box.resize(400, 300);
    box.show();
    box.setTextRTF(
        u"{\\rtf1\\fs17 x\\par\\pard\\li1500\\fi-1500\\tx1500 a\\tab b\\par a longer one\\tab b\\par}"_s);
    const auto leftOf = [&](int block, int character) {
        QTextCursor cursor(box.document()->findBlockByNumber(block));
        cursor.setPosition(cursor.position() + character);
        return box.cursorRect(cursor).left();
    };
    EXPECT_EQ(leftOf(1, 0), leftOf(0, 0));
    EXPECT_NEAR(leftOf(1, 2) - leftOf(1, 0), 100, 1);
    EXPECT_NEAR(leftOf(2, 13) - leftOf(2, 0), 100, 1);
}

TEST(RichTextBox, KeepsTheNumbersOfItsListsApartFromWhatIsTyped)
{
    const QString rtf =
        uR"({\rtf1{\*\listtable{\list{\listlevel\levelnfc0}\listid7}}{\listtext 1. }\ls1\fi-360\li720 one})"_s;
    RichTextBox box;
    box.setTextRTF(rtf);
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(3);
    box.setTextCursor(cursor);
    QTest::keyClicks(&box, u"x"_s);
    EXPECT_TRUE(box.TextRTF().contains(u"1. }xone"_s)) << qPrintable(box.TextRTF());

    box.selectAll();
    box.copy();
    box.paste();
    EXPECT_TRUE(box.TextRTF().contains(u"1. }xone"_s)) << "the same tables: still in its list";
    RichTextBox other;
    other.paste();
    EXPECT_TRUE(other.TextRTF().contains(u"1. xone"_s)) << qPrintable(other.TextRTF());
    EXPECT_FALSE(other.TextRTF().contains(u"\\ls1"_s));
}

TEST(RichTextBox, CopiesAndPastesWhatItCanKeep)
{
    RichTextBox box;
    box.setTextRTF(uR"({\rtf1 a{\i b}{\*\unknown kept}c})"_s);
    box.selectAll();
    box.copy();
    const QMimeData* const offer = QApplication::clipboard()->mimeData();
    EXPECT_EQ(offer->text(), u"abc"_s);
    EXPECT_TRUE(offer->html().contains("italic"_L1));
    EXPECT_TRUE(offer->data(u"text/rtf"_s).contains("\\unknown kept"));

    RichTextBox other;
    other.setPlainText(u"x"_s);
    other.moveCursor(QTextCursor::End);
    other.paste();
    EXPECT_EQ(other.document()->begin().text().remove(QChar(QChar::ObjectReplacementCharacter)), u"xabc"_s);
    EXPECT_TRUE(other.TextRTF().contains("\\unknown kept"_L1));
    other.undo();
    EXPECT_EQ(other.toPlainText(), u"x"_s);

    auto* const page = new QMimeData;
    page->setHtml(u"<p>p<img src='data:image/png;base64,AAAA'></p><table><tr><td>q</td></tr></table>"_s);
    QApplication::clipboard()->setMimeData(page);
    other.paste();
    EXPECT_TRUE(other.toPlainText().startsWith(u"xp"_s));
    EXPECT_TRUE(other.toPlainText().contains(u'q'));
    EXPECT_FALSE(other.toPlainText().contains(QChar::ObjectReplacementCharacter));
    EXPECT_EQ(other.document()->rootFrame()->childFrames().size(), 0);

    other.setLocked(true);
    const QString before = other.toPlainText();
    other.paste();
    QTest::keyClicks(&other, u"typed"_s);
    EXPECT_EQ(other.toPlainText(), before);
    QTest::keyClick(&other, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&other, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), before) << "reading hands may copy";
}

TEST(RichTextBox, EndsABulletLikeAWordProcessor)
{
    const QString bullet = uR"({\rtf1{\pntext\'b7\tab}{\*\pn\pnlvlblt\pnindent360}\fi-360\li720 one\par})"_s;
    RichTextBox box;
    box.setTextRTF(bullet);
    const auto isBulleted = [&box] { return box.TextRTF().contains("\\pnlvlblt"_L1); };
    ASSERT_TRUE(isBulleted());
    box.moveCursor(QTextCursor::Start);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_FALSE(isBulleted());
    EXPECT_EQ(box.toPlainText(), u"one"_s);
    box.undo();
    EXPECT_TRUE(isBulleted());
}

TEST(RichTextBox, TellsTheCharacterAtAPoint)
{
    RichTextBox box;
    box.resize(300, 200);
    box.show();
    box.setPlainText(u"first line\nsecond"_s);
    QTextCursor cursor(box.document());
    for (const int position : {0, 4, 9, 11, 16}) {
        cursor.setPosition(position);
        const QRect before = box.cursorRect(cursor);
        EXPECT_EQ(box.characterAt(before.center() + QPoint(2, 0)), position);
    }
    const int right = box.viewport()->width() - 5;
    EXPECT_EQ(box.characterAt({right, 10}), 10) << "the first line's end";
    EXPECT_EQ(box.characterAt({20, 180}), 17) << "below the text";
}

} // namespace varnhold::test
