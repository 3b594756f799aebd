#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"

#include "ShowRichText.h"
#include "support/PrintText.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QByteArray sample(const QString& name)
{
    QFile file(QStringLiteral(RTF_SAMPLES "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    return file.readAll();
}

void expectRoundTrip(const RichText& text)
{
    const QByteArray written = writeRtf(text);
    const RichText again = readRtf(written);
    EXPECT_EQ(shown(again), shown(text)) << written.constData();
    EXPECT_TRUE(again == text) << written.constData();
    EXPECT_EQ(writeRtf(again), written);
}

class Values
{
public:
    explicit Values(unsigned seed) : m_random(seed) {}

    RichText text()
    {
        RichText text;
        if (chance())
            text.header = {"{\\stylesheet{\\s1 a;}}", "{\\*\\generator b;}"};
        for (int left = 1 + number(5); left > 0; --left) {
            RichText::Paragraph& paragraph = text.paragraphs.emplace_back();
            paragraph.format = number(3) && text.paragraphs.size() > 1
                                   ? text.paragraphs.at(text.paragraphs.size() - 2).format
                                   : paragraphFormat();
            if (paragraph.format.list && !paragraph.format.bullet)
                paragraph.runs.push_back({characterFormat(), u"1.\t"_s, {}, true});
            for (int runs = number(6); runs > 0; --runs)
                addRun(paragraph.runs);
        }
        return text;
    }

private:
    int number(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    bool chance() { return number(2) == 0; }

    void addRun(std::vector<RichText::Run>& runs)
    {
        static const QByteArray groups[] = {"{\\*\\unheard a{b}\\'e9}",
                                            "{\\pict 00}",
                                            "{\\field{\\*\\fldinst a}}",
                                            "{\\fldrslt}",
                                            "{\\fldrslt}",
                                            "{\\footnote \\pard a\\par}",
                                            "{\\v a\\par}"};
        RichText::Run run;
        run.format = characterFormat();
        if (number(4) == 0)
            run.verbatim = groups[number(6)];
        else
            run.text = characters();
        const bool merges = !runs.empty() && runs.back().format == run.format && !runs.back().isNumber &&
                            runs.back().verbatim.isEmpty() && run.verbatim.isEmpty();
        if (!merges)
            runs.push_back(run);
    }

    QString characters()
    {
        static const QString all =
            u"ab c0-?'\\{};*\t\u2028\u00A0\u00AD\u2011\u0001\u007F\u0080\u0085é€ÿ•Жп中\uF0B7"_s +
            QString(QChar(0xD83D)) + QChar(0xDE00) + QChar(0xFFFD);
        QString text;
        for (int left = 1 + number(12); left > 0; --left)
            text += all.at(number(static_cast<int>(all.size())));
        return text;
    }

    RichText::CharacterFormat characterFormat()
    {
        static const QString fonts[] = {{}, {}, u"Sans"_s, u"Symbol"_s, u"Ünï {Ж} \\ Cyr"_s};
        static const quint32 colors[] = {0, 0xFF, 0xFF0000, 0x123456};
        RichText::CharacterFormat format;
        format.bold = chance();
        format.italic = chance();
        format.underline = chance();
        format.strikethrough = chance();
        format.font = fonts[number(5)];
        format.halfPoints = chance() ? 0 : 18 + number(100); // from the size on that stands for the own one
        format.script = static_cast<RichText::Script>(number(3));
        if (chance())
            format.color = colors[number(4)];
        return format;
    }

    RichText::ParagraphFormat paragraphFormat()
    {
        RichText::ParagraphFormat format;
        format.alignment = static_cast<RichText::Alignment>(number(4));
        if (chance())
            format.leftIndent = number(2000) - 500;
        if (chance())
            format.rightIndent = number(2000);
        if (chance())
            format.firstIndent = number(2000) - 1000;
        format.bullet = chance();
        format.list = number(3);
        format.listLevel = format.list ? number(9) : 0;
        format.bulletIndent = format.bullet && !format.list ? number(1000) : 0;
        if (!format.bullet && !format.list && chance())
            format.oldList = "{\\*\\pn\\pnlvlbody{\\pntxta .}}";
        std::set<int> tabs;
        for (int left = chance() ? 0 : number(33); left > 0; --left)
            tabs.insert(1 + number(20000));
        format.tabs.assign(tabs.begin(), tabs.end());
        return format;
    }

    std::mt19937 m_random;
};

} // namespace

TEST(RtfRoundTrip, EveryValueComesBack)
{
    for (unsigned seed = 0; seed < 300 && !::testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        expectRoundTrip(Values(seed).text());
    }
}

TEST(RtfRoundTrip, SamplesOfThreeKindsOfEditors)
{
    EXPECT_EQ(shown(readRtf(sample(u"edit-control.rtf"_s))),
              u"<b Segoe UI 28>What changed\n"
              u"<Segoe UI 22>A <Segoe UI 22 #ff>red<Segoe UI 22> word, one <i Segoe UI 22>slanted<Segoe UI "
              u"22>, one "
              u"<u Segoe UI 22>under<Segoe UI 22> and one <s Segoe UI 22>through<Segoe UI 22>.\n"
              u"(li720 fi-360 bullet360)<Segoe UI 22>First point\n"
              u"(li720 fi-360 bullet360)<Segoe UI 22>Second, café for 5€\n"
              u"(center tx1440)<MS Gothic 22>テスト<Segoe UI 22> and При~end|broken\n"
              u"(li200 ri600 fi-200 {\\*\\pn\\pnlvlbody\\pnf0\\pnindent0\\pnstart1\\pndec{\\pntxta.}})"
              u"<Segoe UI 22>{1.~}<Segoe UI 22>Numbered"_s);
    EXPECT_EQ(readRtf(sample(u"office-suite.rtf"_s)).plainText(),
              u"Heading\nSee the page there’s more — café.\nOne\nTwo\n1.\tNumbered\nleft\tright\n\u00A0Ж"_s);
    EXPECT_EQ(readRtf(sample(u"phone-editor.rtf"_s)).plainText(),
              u"Plain and bold \U0001F600\U0001F600 \nsecond line\na point\nanother 中文\ngonetwice"_s);
}

/// What kept groups refer to by number must still be what it was.
TEST(RtfRoundTrip, AnEditLosesNothing)
{
    RichText text = readRtf(sample(u"office-suite.rtf"_s));
    RichText::Run typed;
    typed.format.font = u"A font of its own"_s;
    typed.format.color = 0x00FF00;
    typed.text = u"typed"_s;
    text.paragraphs.front().runs.push_back(typed);
    expectRoundTrip(text);
    const QByteArray written = writeRtf(text);
    for (const char* kept :
         {"{\\f37\\fnil\\fcharset0 Calibri;}", "{\\f3\\fnil\\fcharset2 Symbol;}",
          "\\ltrch\\fcs0 \\b\\fs28\\cf4 \\sbasedon0", "\\pngblip 89504e470d0a1a0a\n0000000d}", "{\\footer ",
          "{\\field\\flddirty{\\*\\fldinst {\\rtlch\\fcs1 \\af31507 \\ltrch\\fcs0  HYPERLINK "
          "\"http://example.org/a\\\\b\" "
          "}{{\\*\\datafield 00d0c9}}}{\\fldrslt ",
          "{\\footnote ", "\\ls2", "{\\listtext ", "{\\*\\bkmkstart here}", "{\\v hidden words}"})
        EXPECT_TRUE(written.contains(kept)) << kept;
    const qsizetype fourth = written.indexOf("\\colortbl ") + 10;
    EXPECT_EQ(written.sliced(fourth, written.indexOf('}', fourth) - fourth).split(';').at(4),
              "\\red54\\green95\\blue145");
}

TEST(RtfRoundTrip, SamplesReadWhereverTheyAreCut)
{
    for (const QString& name : QDir(QStringLiteral(RTF_SAMPLES)).entryList(QDir::Files)) {
        SCOPED_TRACE(qPrintable(name));
        const QByteArray whole = sample(name);
        const qsizetype step = whole.size() > 2000 ? 3 : 1; // odd, so that words are cut everywhere
        qsizetype longest = 0;
        for (qsizetype size = 0; size <= whole.size() && !::testing::Test::HasFailure(); size += step) {
            const RichText text = readRtf(whole.first(size));
            if (size % 200 < step) {
                EXPECT_TRUE(readRtf(writeRtf(text)) == text) << size;
            }
            const qsizetype shownSize = text.plainText().size();
            EXPECT_GE(shownSize + 12, longest) << size; // a cut loses what it cut, nothing before
            longest = std::max(longest, shownSize);
        }
    }
}

} // namespace varnhold::test
