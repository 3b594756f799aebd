#include "platform/richtext/RichTextDocument.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <array>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class AnyText
{
public:
    explicit AnyText(quint32 seed) : m_random(seed) {}

    RichText text()
    {
        RichText text;
        for (int i = below(3); i > 0; --i)
            text.header.push_back("{\\*\\generator " + QByteArray::number(below(1000)) + ";}");
        for (int i = below(12); i >= 0; --i)
            text.paragraphs.push_back(paragraph());
        return text;
    }

private:
    int below(int end) { return static_cast<int>(m_random.bounded(end)); }
    int twips() { return below(3) == 0 ? below(4001) - 2000 : 0; }

    RichText::CharacterFormat characterFormat()
    {
        RichText::CharacterFormat format;
        format.bold = below(4) == 0;
        format.italic = below(4) == 0;
        format.underline = below(4) == 0;
        format.strikethrough = below(6) == 0;
        format.script = static_cast<RichText::Script>(below(3));
        format.font = QStringList{u""_s, u"DejaVu Sans"_s, u"Nowhere, Sans"_s}[below(3)];
        format.halfPoints = below(2) == 0 ? 0 : 18 + below(200);
        if (below(2) == 0)
            format.color = m_random.bounded(0x1000000U);
        return format;
    }

    RichText::Paragraph paragraph()
    {
        RichText::Paragraph paragraph;
        RichText::ParagraphFormat& format = paragraph.format;
        format.alignment = static_cast<RichText::Alignment>(below(4));
        format.leftIndent = twips();
        format.rightIndent = twips();
        format.firstIndent = twips();
        format.bullet = below(3) == 0;
        format.bulletIndent = twips();
        for (int i = below(3) == 0 ? below(5) : 0; i > 0; --i)
            format.tabs.push_back(below(9000));
        format.list = below(3) == 0 ? 1 + below(4) : 0;
        format.listLevel = format.list ? below(9) : 0;
        if (format.list && below(2) == 0)
            paragraph.runs.push_back({characterFormat(), u"1.\t"_s, {}, true});
        for (int i = below(6); i > 0; --i)
            addRun(paragraph.runs);
        return paragraph;
    }

    void addRun(std::vector<RichText::Run>& runs)
    {
        RichText::Run run{characterFormat(), {}, {}};
        if (below(5) == 0) {
            run.verbatim = "{\\pict " + QByteArray::number(below(4)) + '}';
        } else {
            const QString letters = u"ab \t\u2028\u00a0\u00e9\u4e00\U0001F600"_s;
            for (int i = below(9); i >= 0; --i)
                run.text += letters[below(static_cast<int>(letters.size()))];
        }
        // Two runs of one format side by side are one run.
        if (runs.empty() || !run.verbatim.isEmpty() || !runs.back().verbatim.isEmpty() ||
            runs.back().isNumber || !(runs.back().format == run.format))
            runs.push_back(run);
    }

    QRandomGenerator m_random;
};

RichText::Paragraph plain(const QString& text)
{
    return {{}, {{{}, text, {}}}};
}

} // namespace

TEST(RichTextDocument, GivesBackEveryValue)
{
    QTextDocument document; // one for all: what stood there before leaves nothing behind
    for (quint32 seed = 0; seed < 150; ++seed) {
        const RichText text = AnyText(seed).text();
        setRichText(document, text);
        ASSERT_TRUE(richTextOf(document) == text) << "seed " << seed;
    }
}

TEST(RichTextDocument, KeepsOneParagraphWhateverTheTextHolds)
{
    QTextDocument document;
    RichText text;
    text.paragraphs = {plain(u"a\nb\rc\u2029d\uFDD0e"_s)};
    setRichText(document, text);
    EXPECT_EQ(document.blockCount(), 1);
    EXPECT_EQ(richTextOf(document).paragraphs[0].runs[0].text, u"a\u2028b\u2028c\u2028d\uFFFDe"_s);
    setRichText(document, RichText());
    EXPECT_EQ(richTextOf(document).paragraphs.size(), 1U);
    EXPECT_FALSE(document.isUndoAvailable());
}

TEST(RichTextDocument, BreaksUpWordsThatTheLayoutCouldNotWrap)
{
    RichText text;
    text.paragraphs.push_back({{}, {{{}, u"a "_s + QString(50'000, u'x') + u" b"_s, {}}}});
    std::vector<RichText::Run>& runs = text.paragraphs.emplace_back().runs;
    for (int i = 0; i < 20'000; ++i) {
        runs.push_back({{}, u"x"_s, {}});
        runs.back().format.bold = i % 2 == 0;
    }
    QTextDocument document;
    setRichText(document, text);
    qsizetype longest = 0;
    const QString shown = document.toRawText();
    for (const QStringView piece : QStringView(shown).split(QChar::ObjectReplacementCharacter))
        longest = std::max(longest, piece.size());
    EXPECT_LT(longest, 5000);
    EXPECT_GT(document.lastBlock().text().count(QChar::ObjectReplacementCharacter), 50) << "many short runs";
    EXPECT_TRUE(richTextOf(document) == text) << "the breaks are no part of it";
}

TEST(RichTextDocument, KeepsVerbatimGroupsThroughEdits)
{
    QTextDocument document;
    RichText text;
    const RichText::Run picture{{}, {}, "{\\pict 1}"};
    text.paragraphs = {{{}, {{{}, u"ab"_s, {}}, picture, picture, {{}, u"cd"_s, {}}}}};
    setRichText(document, text);
    QTextDocument bare;
    RichText letters;
    letters.paragraphs = {plain(u"abcd"_s)};
    setRichText(bare, letters);
    EXPECT_NEAR(document.idealWidth(), bare.idealWidth(), 1) << "groups take no room";

    QTextCursor cursor(&document);
    cursor.setPosition(1);
    cursor.insertText(u"X"_s);
    cursor.setPosition(3);
    cursor.setPosition(4, QTextCursor::KeepAnchor); // one of the two groups
    const QTextDocumentFragment cut = cursor.selection();
    cursor.removeSelectedText();
    EXPECT_EQ(richTextOf(document).paragraphs[0].runs.size(), 3U);
    cursor.movePosition(QTextCursor::End);
    cursor.insertFragment(cut);
    EXPECT_TRUE(richTextOf(document).paragraphs[0].runs.back() == picture);
}

TEST(RichTextDocument, TakesWhatTheToolkitCallsOtherwise)
{
    QTextDocument document;
    document.setHtml(u"<p style='margin-left:40px; text-indent:-20px'>a<img src='x.png'><b>b</b></p>"
                     "<ul><li style='font-size:16px; color:#010203'>c</li></ul>"
                     "<table><tr><td>d</td><td>e</td></tr></table>"_s);
    const RichText text = richTextOf(document);
    EXPECT_EQ(text.paragraphs[0].format.leftIndent, 600);
    EXPECT_EQ(text.paragraphs[0].format.firstIndent, -300);
    EXPECT_EQ(text.paragraphs[0].runs.size(), 2U) << "no picture";
    EXPECT_TRUE(text.paragraphs[0].runs[1].format.bold);
    EXPECT_TRUE(text.paragraphs[1].format.bullet);
    EXPECT_EQ(text.paragraphs[1].runs[0].format.halfPoints, 24);
    EXPECT_EQ(text.paragraphs[1].runs[0].format.color, 0x030201U);
    QStringList texts;
    for (const RichText::Paragraph& paragraph : text.paragraphs)
        texts += paragraph.runs.empty() ? QString() : paragraph.runs[0].text;
    EXPECT_TRUE(texts.contains(u"d"_s) && texts.contains(u"e"_s));
    QTextDocument again;
    setRichText(again, text);
    EXPECT_TRUE(richTextOf(again) == text);
}

TEST(RichTextDocument, LaysBulletsAndIndentsOutInPixels)
{
    QTextDocument document;
    RichText text;
    text.paragraphs = {plain(u"hanging"_s), plain(u"bulleted"_s), plain(u"narrow bullet"_s)};
    text.paragraphs[0].format.leftIndent = 720;
    text.paragraphs[0].format.firstIndent = -360;
    text.paragraphs[1].format = text.paragraphs[0].format;
    text.paragraphs[1].format.bullet = true;
    text.paragraphs[1].format.bulletIndent = 360;
    text.paragraphs[2].format.bullet = true;
    setRichText(document, text);
    document.setDocumentMargin(0);
    document.documentLayout()->documentSize();
    const auto left = [&document](int block) {
        return document.findBlockByNumber(block).layout()->lineAt(0).naturalTextRect().left();
    };
    EXPECT_EQ(left(0), 24);
    EXPECT_EQ(left(1), 48) << "the bullet takes the hanging part";
    EXPECT_EQ(left(2), 12) << "never upon the bullet";
}

TEST(RichTextDocument, ShowsWithinTheViewWhatLeadsOutOfIt)
{
    QTextDocument document;
    RichText text;
    for (const auto& [left, first, right] : {std::array{-720, 0, 0},
                                             {300, -900, 0},
                                             {30'000, 0, 0},
                                             {0, 20'000, 0},
                                             {0, 0, 9000},
                                             {0, 0, -500}}) {
        text.paragraphs.push_back(plain(u"words that take more than one line"_s));
        RichText::ParagraphFormat& format = text.paragraphs.back().format;
        format.leftIndent = left;
        format.firstIndent = first;
        format.rightIndent = right;
    }
    document.setTextWidth(400);
    setRichText(document, text);
    for (const double width : {400.0, 120.0, 300.0}) {
        document.setTextWidth(width);
        fitIndents(document);
        document.documentLayout()->documentSize();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            for (int i = 0; i < block.layout()->lineCount(); ++i) {
                const QTextLine line = block.layout()->lineAt(i);
                EXPECT_GE(line.naturalTextRect().left() + document.documentMargin(), 0)
                    << block.blockNumber();
                EXPECT_GE(line.width(), 25) << block.blockNumber();
                EXPECT_LE(line.x() + line.width(), width) << block.blockNumber();
            }
        EXPECT_TRUE(richTextOf(document) == text) << width;
        EXPECT_FALSE(document.isUndoAvailable() || document.isModified());
    }
}

} // namespace varnhold::test
