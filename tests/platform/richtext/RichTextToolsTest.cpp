#include "platform/richtext/RichTextTools.h"

#include "ShowRichText.h"
#include "platform/richtext/RichTextBox.h"
#include "platform/richtext/RichTextFile.h"
#include "support/ErrorNumber.h"
#include "support/PrintText.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

/// A box with a note of which the characters from `first` to before `end` are selected.
struct Desk
{
    explicit Desk(const QString& body, int first = 0, int end = -1)
    {
        box.resize(400, 300);
        box.setTextRTF(uR"({\rtf1{\fonttbl{\f0 Zero;}}{\colortbl;\red255;}\pard )"_s + body + u'}');
        QTextCursor cursor = box.textCursor();
        cursor.setPosition(first);
        cursor.setPosition(end < 0 ? box.document()->characterCount() - 1 : end, QTextCursor::KeepAnchor);
        box.setTextCursor(cursor);
    }
    [[nodiscard]] QString text() const { return shown(box.contents()); }

    RichTextBox box;
};

} // namespace

TEST(RichTextTools, AreOneStepOfUndoEach)
{
    const struct
    {
        const char* name;
        QString body;
        std::function<void(QTextCursor&)> tool;
        QString shown;
    } cases[] = {
        {"a toggle of mixed letters sets", u"a\\b b\\b0 c"_s, [](auto& at) { toggle(at, LetterStyle::Bold); },
         u"<b>abc"_s},
        {"one of equal letters clears", u"\\i a\\b b"_s, [](auto& at) { toggle(at, LetterStyle::Italic); },
         u"a<b>b"_s},
        {"lines", u"a"_s, [](auto& at) { toggle(at, LetterStyle::Underline); }, u"<u>a"_s},
        {"font", u"a{\\b b}"_s, [](auto& at) { setFont(at, u"One"_s); }, u"<One>a<b One>b"_s},
        {"size", u"a"_s, [](auto& at) { setHalfPoints(at, 30); }, u"<30>a"_s},
        {"the own size", u"a"_s, [](auto& at) { setHalfPoints(at, 17); }, u"<own>a"_s},
        {"colour", u"\\cf1 a\\cf0 b"_s, [](auto& at) { setColor(at, 0x010203); }, u"<#10203>ab"_s},
        {"capitals keep formats and groups, and may be more", u"stra{\\b\\'df}{\\*\\x 1}e\\par q"_s,
         [](auto& at) { changeCase(at, LetterCase::Upper); }, u"STRA<b>SS<>[{\\*\\x 1}]E\nQ"_s},
        {"small letters", u"A{\\f0\\'c9}"_s, [](auto& at) { changeCase(at, LetterCase::Lower); },
         u"a<Zero>é"_s},
        {"alignment", u"a\\par\\qr b"_s, [](auto& at) { setAlignment(at, RichText::Alignment::Center); },
         u"(center)a\n(center)b"_s},
        {"the first paragraph decides", u"a\\par\\li300 b"_s, [](auto& at) { toggleIndent(at, 600); },
         u"(li600)a\n(li600)b"_s},
        {"an indent keeps what hangs", u"\\li400\\fi-400 a"_s, [](auto& at) { toggleIndent(at, 600); },
         u"(li1000 fi-400)a"_s},
        {"none keeps it, too", u"\\li1000\\fi-400 a"_s, [](auto& at) { toggleIndent(at, 600); },
         u"(li400 fi-400)a"_s},
        {"what hangs keeps the indent", u"\\li300 a"_s, [](auto& at) { toggleHangingIndent(at, 200); },
         u"(li500 fi-200)a"_s},
        {"none hangs", u"\\li500\\fi-200 a"_s, [](auto& at) { toggleHangingIndent(at, 200); }, u"(li300)a"_s},
        {"right", u"a"_s, [](auto& at) { toggleRightIndent(at, 150); }, u"(ri150)a"_s},
        {"bullet", u"a"_s, [](auto& at) { toggleBullet(at, 240); }, u"(bullet240)a"_s},
        {"instead of a number", u"{\\listtext 1.\\tab}\\ls1 a\\par\\pard b"_s,
         [](auto& at) { toggleBullet(at, 240); }, u"(bullet240)a\n(bullet240)b"_s},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        Desk desk(one.body);
        const QString before = desk.text();
        desk.box.edit(one.tool);
        EXPECT_EQ(desk.text(), one.shown);
        EXPECT_EQ(desk.box.textCursor().selectedText().size(), desk.box.document()->characterCount() - 1);
        desk.box.undo();
        EXPECT_EQ(desk.text(), before);
        EXPECT_FALSE(desk.box.document()->isUndoAvailable());
    }
}

TEST(RichTextTools, ReachTheSelectionAlone)
{
    Desk desk(u"abc\\par def\\par ghi"_s, 1, 5);
    desk.box.edit([](auto& at) { changeCase(at, LetterCase::Upper); });
    desk.box.edit([](auto& at) { toggle(at, LetterStyle::Bold); });
    desk.box.edit([](auto& at) { toggleRightIndent(at, 150); });
    EXPECT_EQ(desk.text(), u"(ri150)a<b>BC\n(ri150)<b>D<>ef\nghi"_s);

    Desk caret(u"a"_s, 1, 1);
    caret.box.edit([](auto& at) { toggle(at, LetterStyle::Bold); });
    EXPECT_EQ(selectedLetters(caret.box.textCursor()).bold, true);
    caret.box.insertPlainText(u"b"_s);
    EXPECT_EQ(caret.text(), u"a<b>b"_s);

    caret.box.setLocked(true);
    caret.box.edit([](auto&) { FAIL() << "locked"; });
}

TEST(RichTextTools, TellWhatTheLettersHaveInCommon)
{
    const SelectedLetters mixed =
        selectedLetters(Desk(u"\\f0\\b a{\\*\\x}\\cf1 b\\fs30 c\\i d"_s).box.textCursor());
    EXPECT_EQ(mixed.bold, true);
    EXPECT_FALSE(mixed.italic);
    EXPECT_EQ(mixed.font, u"Zero"_s);
    EXPECT_FALSE(mixed.halfPoints);
    EXPECT_FALSE(mixed.color);
    const SelectedLetters one = selectedLetters(Desk(u"\\f0\\cf1 ab"_s, 1, 2).box.textCursor());
    EXPECT_EQ(one.color, std::optional<quint32>(255));
    EXPECT_EQ(one.halfPoints, 24);
}

TEST(RichTextTools, FillAndKeepNotesInFiles)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"notes.rtf"_s);
    const auto written = [&path] {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    Desk desk(u"\\b a{\\*\\x 1}\\line b\\par c"_s);
    const QString before = desk.text();
    EXPECT_EQ(desk.box.plainText(), u"a\nb\nc"_s);
    savePlainText(path, desk.box.plainText() + u"\u20AC"_s);
    EXPECT_EQ(written(), "a\r\nb\r\nc\x80\r\n");
    savePlainText(path, u"\u0416\n"_s);
    EXPECT_EQ(written(), "\xEF\xBB\xBF\xD0\x96\r\n");
    EXPECT_EQ(loadNotes(path).plainText(), u"\u0416\n"_s);
    saveRtf(path, desk.box.contents());

    desk.box.replaceContents({{"{\\info{\\title t}}"}, {{}}});
    EXPECT_TRUE(desk.box.isEmpty());
    desk.box.undo();
    EXPECT_EQ(desk.text(), before);
    EXPECT_TRUE(desk.box.contents().header.empty());
    EXPECT_TRUE(loadNotes(path) == desk.box.contents());
    QFile large(path);
    ASSERT_TRUE(large.resize(64 * 1024 * 1024 + 1));
    EXPECT_EQ(errorNumberOf([&] { loadNotes(path); }), 7);

    Desk group(u"{\\pict 00}"_s);
    EXPECT_EQ(group.box.plainText(), QString());
    EXPECT_FALSE(group.box.isEmpty());
}

TEST(RichTextTools, RightMarginIsTheViewsOwn)
{
    Desk desk(u"some words that are long enough for two lines in a narrow box"_s);
    desk.box.show();
    const int full = static_cast<int>(desk.box.document()->textWidth());
    desk.box.setRightMargin(1500);
    EXPECT_EQ(static_cast<int>(desk.box.document()->textWidth()), full - 100);
    desk.box.resize(300, 300);
    EXPECT_EQ(static_cast<int>(desk.box.document()->textWidth()), full - 200);
    EXPECT_FALSE(desk.box.document()->isModified());
    desk.box.setRightMargin(0);
    EXPECT_EQ(static_cast<int>(desk.box.document()->textWidth()), full - 100);
}

} // namespace varnhold::test
