#include "platform/richtext/RtfReader.h"

#include "platform/CodePage.h"
#include "platform/richtext/RtfCharsets.h"
#include "platform/richtext/RtfScanner.h"
#include "platform/richtext/RtfTables.h"
#include "platform/richtext/RtfText.h"
#include "platform/richtext/RtfWords.h"

#include <QList>
#include <QStringDecoder>

#include <algorithm>
#include <limits>

namespace varnhold {

namespace {

using Kind = RtfToken::Kind;
using Run = RichText::Run;

constexpr std::size_t deepest = 16384; // groups; deeper ones are counted, their formats leak out
constexpr qsizetype mostTabs = 32;     // a paragraph's; they are copied to each that follows
constexpr int longest = 31680;         // twips, 22 inches
constexpr int biggest = 3276;          // half-points
constexpr int longestFallback = 100;   // characters behind \u
constexpr int latinPage = 1252;
constexpr int noFont = std::numeric_limits<int>::min();

/// The format of characters as the stream names it.
struct Characters
{
    enum class Concealed : unsigned char { No, Hidden, Deleted };

    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    Concealed concealed = Concealed::No;
    int font = noFont; // a number of the table; noFont: the document's default
    int halfPoints = 0;
    int color = -1; // an index of the table; -1: none
    bool operator==(const Characters&) const = default;
};

struct ParagraphWords
{
    RichText::Alignment alignment = RichText::Alignment::Left;
    int leftIndent = 0;
    int rightIndent = 0;
    int firstIndent = 0;
    bool oldBullet = false;
    bool oldNumber = false;
    int bulletIndent = 0;
    int list = 0; // \ls; 0: none
    int level = 0;
    QList<int> tabs; // shared by the groups that do not change it
};

/// A group that is open.
struct Group
{
    Characters characters;
    ParagraphWords paragraph;
    int fallback = 1; // characters behind \u
    qsizetype begin = 0;
    bool written = false; // it has shown something or held a group
    bool isField = false;
    bool isFieldResult = false;
    bool isListText = false;
    bool isOldList = false;      // shows nothing, and so with its groups
    bool isAlternatives = false; // the same, but for \ud
};

/// A field whose code is being collected.
struct Field
{
    QByteArray code;
    Characters characters;
    bool placed = false;
};

bool isOn(const RtfToken& word)
{
    return !word.hasParameter || word.parameter != 0;
}

int length(const RtfToken& word)
{
    return std::clamp(word.parameter, -longest, longest);
}

const QByteArray hiddenText = QByteArrayLiteral("{\\v ");
const QByteArray deletedText = QByteArrayLiteral("{\\deleted ");

/// Appends a run to the one in front of it, if they are of one kind.
bool joined(Run& run, const Run& next)
{
    if (run.format != next.format || run.verbatim.isEmpty() != next.verbatim.isEmpty())
        return false;
    if (run.verbatim.isEmpty()) {
        run.text += next.text;
        return true;
    }
    for (const QByteArray& concealed : {hiddenText, deletedText})
        if (run.verbatim.startsWith(concealed) && next.verbatim.startsWith(concealed)) {
            run.verbatim.chop(1);
            run.verbatim += next.verbatim.sliced(concealed.size());
            return true;
        }
    return false;
}

class Reader
{
public:
    explicit Reader(QByteArrayView stream) : m_stream(stream), m_scanner(stream) {}

    RichText read();

private:
    Group& group() { return m_groups.back(); }
    [[nodiscard]] bool isShown() const
    {
        return !m_groups.back().isOldList && !m_groups.back().isAlternatives;
    }
    /// The outermost group cannot turn into something else: the whole document would be lost in it.
    [[nodiscard]] bool isInGroup() const { return m_groups.size() > 2 || m_tooDeep > 0; }

    bool take(const RtfToken& token); // false: the document ends here
    void openGroup(const RtfToken& token);
    void closeGroup();
    void word(const RtfToken& token);
    bool groupWord(RtfWord word, const RtfToken& token, bool ignorable);
    void characterWord(RtfWord word, const RtfToken& token);
    void paragraphWord(RtfWord word, const RtfToken& token);
    void documentWord(const RtfWordMeaning& meaning, const RtfToken& token);
    void symbol(const RtfToken& token);

    void appendText(QByteArrayView text);
    void appendByte(unsigned char byte);
    void appendCharacter(char16_t character);
    void appendUnicode(int number);
    void prepare();
    void flushBytes();
    void flushText();
    void setCharacters(const Characters& characters);
    void endParagraph();
    void endDocument();
    void keepTables();

    QByteArray takeGroup(const RtfToken& token);
    void skipGroup();
    void placeGroup(const QByteArray& kept, bool withHeader);
    void placeFields();
    void beginListText();

    RtfCodePage& page();
    RichText::CharacterFormat formatOf(const Characters& characters) const;
    RichText::ParagraphFormat formatOf(const ParagraphWords& words) const;

    QByteArrayView m_stream;
    RtfScanner m_scanner;
    RichText m_result;
    std::vector<Group> m_groups{1}; // the first stands for what is outside
    qsizetype m_tooDeep = 0;        // open groups beyond those
    qsizetype m_star = -1;          // offset of the \* just read
    qsizetype m_fallback = 0;       // characters still to be passed over
    bool m_body = false;            // no longer in the header

    int m_codePage = latinPage;
    int m_defaultFont = noFont;
    RtfCodePages m_pages;
    RtfFonts m_fonts;
    RtfColors m_colors;
    RtfLists m_lists;

    QString m_text; // not yet a run; of the format m_characters
    Characters m_characters;
    QByteArray m_bytes; // not yet text; of a multi-byte page
    RtfCodePage* m_bytesPage = nullptr;
    bool m_insideCharacter = false;
    bool m_cellEnded = false; // a tab if anything follows in the row
    std::vector<Field> m_fields;
    std::size_t m_placedFields = 0;
    RichText::Paragraph m_paragraph;
    std::vector<Run> m_listText; // number or bullet of the paragraph
    std::vector<Run>* m_runs = &m_paragraph.runs;
};

RichText Reader::read()
{
    for (RtfToken token = m_scanner.next(); token.kind != Kind::End && take(token);
         token = m_scanner.next()) {
    }
    flushBytes();
    const ParagraphWords last = group().paragraph; // those of a paragraph that has no end of its own
    while (m_groups.size() > 1)
        closeGroup();
    group().paragraph = last;
    endDocument();
    keepTables();
    return std::move(m_result);
}

bool Reader::take(const RtfToken& token)
{
    if (token.kind == Kind::Text || token.kind == Kind::Byte || token.kind == Kind::Binary)
        group().written = true;
    if (token.kind == Kind::Text) {
        appendText(token.bytes);
        return true;
    }
    if (token.kind == Kind::Byte) {
        appendByte(token.byte);
        return true;
    }
    flushBytes();
    switch (token.kind) {
    case Kind::Open:
        openGroup(token);
        break;
    case Kind::Close:
        m_star = -1;
        m_fallback = 0;
        if (m_tooDeep > 0)
            --m_tooDeep;
        else if (m_groups.size() > 2)
            closeGroup();
        else // the end, unless braces behind it tell that this one was too many
            return rtfExcessBrace(m_stream, m_scanner.offset()) >= 0;
        break;
    case Kind::Word:
        word(token);
        break;
    case Kind::Symbol:
        symbol(token);
        break;
    case Kind::Binary:
        m_star = -1;
        m_fallback = std::max<qsizetype>(m_fallback - 1, 0);
        break;
    default:
        break;
    }
    return true;
}

void Reader::openGroup(const RtfToken& token)
{
    m_star = -1;
    m_fallback = 0;
    group().written = true;
    if (m_groups.size() > deepest) {
        ++m_tooDeep;
        return;
    }
    Group inner = group();
    inner.begin = token.begin;
    inner.written = false;
    inner.isField = inner.isFieldResult = inner.isListText = false;
    m_groups.push_back(std::move(inner));
}

void Reader::closeGroup()
{
    const Group closed = std::move(group());
    m_groups.pop_back();
    if (closed.isFieldResult) {
        flushText();
        m_runs->push_back({formatOf(closed.characters), {}, "{\\fldrslt}"});
    }
    if (closed.isField) {
        if (!m_fields.back().placed)
            placeFields();
        m_fields.pop_back();
        m_placedFields = std::min(m_placedFields, m_fields.size());
    }
    if (closed.isListText) {
        flushText();
        m_runs = &m_paragraph.runs;
    }
    if (closed.isOldList) {
        ParagraphWords& outer = group().paragraph;
        outer.oldBullet = closed.paragraph.oldBullet;
        outer.oldNumber = closed.paragraph.oldNumber;
        outer.bulletIndent = closed.paragraph.bulletIndent;
    }
}

void Reader::word(const RtfToken& token)
{
    const RtfWordMeaning meaning = rtfWord(token.bytes);
    const bool ignorable = m_star >= 0;
    if (meaning.word == RtfWord::Character || meaning.word == RtfWord::Unicode ||
        meaning.word >= RtfWord::Paragraph)
        group().written = true;
    if (meaning.word == RtfWord::Character) {
        if (m_fallback > 0)
            --m_fallback;
        else
            appendCharacter(meaning.value);
    } else {
        m_fallback = 0;
        if (!isInGroup() || !groupWord(meaning.word, token, ignorable)) {
            if (meaning.word >= RtfWord::ParagraphDefaults)
                paragraphWord(meaning.word, token);
            else if (meaning.word >= RtfWord::Plain)
                characterWord(meaning.word, token);
            else
                documentWord(meaning, token);
        }
    }
    m_star = -1;
}

/// True when the word makes its group something that is no text of the body, or only part of it.
bool Reader::groupWord(RtfWord word, const RtfToken& token, bool ignorable)
{
    switch (word) {
    case RtfWord::FontTable:
        readRtfFonts(takeGroup(token), m_codePage, m_pages, m_fonts);
        return true;
    case RtfWord::ColorTable:
        m_colors = readRtfColors(takeGroup(token));
        return true;
    case RtfWord::ListTable:
    case RtfWord::ListOverrideTable: {
        const QByteArray kept = takeGroup(token);
        if (word == RtfWord::ListTable)
            m_lists.readTable(kept);
        else
            m_lists.readOverrides(kept);
        placeGroup(kept, true);
        return true;
    }
    case RtfWord::HeaderGroup:
        placeGroup(takeGroup(token), true);
        return true;
    case RtfWord::FieldCode:
    case RtfWord::BodyGroup:
        m_body = m_body || isShown();
        placeGroup(takeGroup(token), false);
        return true;
    case RtfWord::PlacedGroup:
        placeGroup(takeGroup(token), !m_body);
        return true;
    case RtfWord::SkippedGroup:
    case RtfWord::OldListText:
        skipGroup();
        return true;
    case RtfWord::Alternatives:
        group().written = group().isAlternatives = true;
        return true;
    case RtfWord::UnicodeAlternative:
        group().written = true;
        group().isAlternatives = false;
        return true;
    case RtfWord::Field:
        if (m_tooDeep > 0 || group().isField || !isShown())
            return true;
        m_body = true;
        group().written = group().isField = true;
        m_fields.push_back({"{\\field", group().characters, false});
        return true;
    case RtfWord::FieldMark:
        if (group().isField && !m_fields.back().placed)
            m_fields.back().code += '\\' + token.bytes.toByteArray();
        return true;
    case RtfWord::FieldResult:
        if (isShown() && m_tooDeep == 0 && !group().isFieldResult) {
            placeFields();
            group().written = group().isFieldResult = true;
        }
        return true;
    case RtfWord::ListText:
        beginListText();
        return true;
    case RtfWord::OldList:
        group().written = true;
        group().isOldList = m_tooDeep == 0;
        return true;
    case RtfWord::Unknown:
        if (ignorable)
            placeGroup(takeGroup(token), !m_body);
        return ignorable;
    default:
        return false;
    }
}

void Reader::documentWord(const RtfWordMeaning& meaning, const RtfToken& token)
{
    switch (meaning.word) {
    case RtfWord::CodePage:
        if (meaning.value)
            m_codePage = meaning.value;
        break;
    case RtfWord::AnsiCodePage:
        group().written = true;
        m_codePage = RtfCodePages::knows(token.parameter) ? token.parameter : latinPage;
        break;
    case RtfWord::DefaultFont:
        m_defaultFont = token.parameter;
        break;
    case RtfWord::Unicode:
        appendUnicode(token.parameter);
        m_fallback = group().fallback;
        break;
    case RtfWord::UnicodeSkip:
        group().fallback = std::clamp(token.parameter, 0, longestFallback);
        break;
    default:
        break;
    }
}

void Reader::characterWord(RtfWord word, const RtfToken& token)
{
    using Concealed = Characters::Concealed;
    Characters& characters = group().characters;
    switch (word) {
    case RtfWord::Plain:
        characters = {};
        break;
    case RtfWord::Bold:
        characters.bold = isOn(token);
        break;
    case RtfWord::Italic:
        characters.italic = isOn(token);
        break;
    case RtfWord::Underline:
        characters.underline = isOn(token);
        break;
    case RtfWord::NoUnderline:
        characters.underline = false;
        break;
    case RtfWord::Strike:
        characters.strikethrough = isOn(token);
        break;
    case RtfWord::Hidden:
        characters.concealed = isOn(token) ? Concealed::Hidden : Concealed::No;
        break;
    case RtfWord::Deleted:
        characters.concealed = isOn(token) ? Concealed::Deleted : Concealed::No;
        break;
    case RtfWord::Font:
        characters.font = token.parameter;
        break;
    case RtfWord::FontSize:
        characters.halfPoints = std::clamp(token.parameter, 0, biggest);
        break;
    case RtfWord::Color:
        characters.color = token.parameter;
        break;
    default:
        break;
    }
}

void Reader::paragraphWord(RtfWord word, const RtfToken& token)
{
    ParagraphWords& paragraph = group().paragraph;
    switch (word) {
    case RtfWord::ParagraphDefaults:
        paragraph = {};
        m_body = m_body || isShown();
        break;
    case RtfWord::Left:
        paragraph.alignment = RichText::Alignment::Left;
        break;
    case RtfWord::Center:
        paragraph.alignment = RichText::Alignment::Center;
        break;
    case RtfWord::Right:
        paragraph.alignment = RichText::Alignment::Right;
        break;
    case RtfWord::Justify:
        paragraph.alignment = RichText::Alignment::Justify;
        break;
    case RtfWord::LeftIndent:
        paragraph.leftIndent = length(token);
        break;
    case RtfWord::RightIndent:
        paragraph.rightIndent = length(token);
        break;
    case RtfWord::FirstIndent:
        paragraph.firstIndent = length(token);
        break;
    case RtfWord::Tab: {
        const int tab = length(token);
        const auto at = std::lower_bound(paragraph.tabs.cbegin(), paragraph.tabs.cend(), tab);
        if (tab > 0 && paragraph.tabs.size() < mostTabs && (at == paragraph.tabs.cend() || *at != tab))
            paragraph.tabs.insert(at, tab);
        break;
    }
    case RtfWord::OldListBullet:
        paragraph.oldBullet = true;
        paragraph.oldNumber = false;
        break;
    case RtfWord::OldListNumber:
        paragraph.oldBullet = false;
        paragraph.oldNumber = true;
        break;
    case RtfWord::OldListIndent:
        paragraph.bulletIndent = std::max(length(token), 0);
        break;
    case RtfWord::List:
        paragraph.list = token.parameter;
        break;
    case RtfWord::ListLevel:
        paragraph.level = token.parameter;
        break;
    case RtfWord::Paragraph:
    case RtfWord::Row:
        if (isShown() && m_runs != &m_listText)
            endParagraph();
        break;
    case RtfWord::Page:
        if (!m_text.isEmpty() || !m_paragraph.runs.empty())
            appendCharacter(QChar::LineSeparator);
        break;
    case RtfWord::Cell:
        if (isShown() && m_runs != &m_listText) {
            prepare();
            m_cellEnded = true;
        }
        break;
    default:
        break;
    }
}

void Reader::symbol(const RtfToken& token)
{
    m_star = token.byte == '*' ? token.begin : -1;
    if (token.byte >= 0x80) {
        appendByte(token.byte);
    } else if (const char16_t character = rtfSymbol(token.byte)) {
        group().written = true;
        if (m_fallback > 0)
            --m_fallback;
        else
            appendCharacter(character);
    }
}

void Reader::appendText(QByteArrayView text)
{
    if (m_fallback > 0) {
        const qsizetype skipped = std::min(m_fallback, text.size());
        m_fallback -= skipped;
        text = text.sliced(skipped);
    }
    if (m_insideCharacter && !text.isEmpty()) {
        m_bytes += text.front();
        text = text.sliced(1);
    }
    flushBytes();
    m_star = -1;
    if (text.isEmpty() || !isShown())
        return;
    prepare();
    m_text += QLatin1String(text.data(), text.size());
}

void Reader::appendByte(unsigned char byte)
{
    m_star = -1;
    if (m_fallback > 0) {
        --m_fallback;
        return;
    }
    if (!isShown())
        return;
    if (byte < 0x80 && !m_insideCharacter) {
        flushBytes();
        appendCharacter(byte);
        return;
    }
    RtfCodePage& decoder = page();
    if (!decoder.isMultiByte()) {
        appendCharacter(decoder.character(byte));
        return;
    }
    prepare();
    m_bytesPage = &decoder;
    m_bytes += static_cast<char>(byte);
    m_insideCharacter = !m_insideCharacter && decoder.isLead(byte);
}

void Reader::appendCharacter(char16_t character)
{
    character = rtfTextCharacter(character);
    if (character == 0 || !isShown())
        return;
    prepare();
    m_text += QChar(character);
}

void Reader::appendUnicode(int number)
{
    if (number < 0)
        number += 0x10000;
    if (number > 0xFFFF && number <= static_cast<int>(QChar::LastValidCodePoint)) {
        appendCharacter(QChar::highSurrogate(static_cast<char32_t>(number)));
        appendCharacter(QChar::lowSurrogate(static_cast<char32_t>(number)));
    } else if (number >= 0 && number <= 0xFFFF) {
        appendCharacter(static_cast<char16_t>(number));
    }
}

/// Before anything is shown.
void Reader::prepare()
{
    m_body = true;
    group().written = true;
    if (m_cellEnded) {
        m_cellEnded = false;
        setCharacters(group().characters);
        m_text += u'\t';
    }
    if (m_placedFields < m_fields.size())
        placeFields();
    setCharacters(group().characters);
}

void Reader::setCharacters(const Characters& characters)
{
    if (m_characters == characters)
        return;
    flushText();
    m_characters = characters;
}

void Reader::flushBytes()
{
    if (m_bytes.isEmpty())
        return;
    for (const QChar c : m_bytesPage->text(m_bytes))
        if (const char16_t character = rtfTextCharacter(c.unicode()))
            m_text += QChar(character);
    m_bytes.clear();
    m_insideCharacter = false;
}

void Reader::flushText()
{
    if (m_text.isEmpty())
        return;
    Run run;
    run.format = formatOf(m_characters);
    if (m_characters.concealed == Characters::Concealed::No) {
        run.text = QString(m_text.constData(), m_text.size());
    } else {
        run.verbatim = m_characters.concealed == Characters::Concealed::Hidden ? hiddenText : deletedText;
        appendRtfText(run.verbatim, m_text, false);
        run.verbatim += '}';
    }
    if (m_runs->empty() || !joined(m_runs->back(), run))
        m_runs->push_back(std::move(run));
    m_text.resize(0); // keeps its memory
}

void Reader::endParagraph()
{
    constexpr QStringView bullets = u"\u2022\u00B7\uF0B7\u25CF\u25E6\u25AA\u25A0\u2043\u2219\uF0A7";
    flushText();
    m_body = true;
    m_cellEnded = false;
    const ParagraphWords& words = group().paragraph;
    m_paragraph.format = formatOf(words);
    bool& bullet = m_paragraph.format.bullet;
    const auto listed = words.list > 0 ? m_lists.isBullet(words.list, words.level) : std::nullopt;
    if (!bullet && listed) {
        bullet = *listed;
    } else if (!bullet && !words.oldNumber && m_listText.size() == 1) {
        const QString text = m_listText.front().text.trimmed();
        bullet = text.size() == 1 && bullets.contains(text.front());
    }
    if (bullet) {
        m_paragraph.format.bulletIndent = words.bulletIndent;
    } else {
        std::vector<Run>& runs = m_paragraph.runs;
        if (!m_listText.empty() && !runs.empty() && joined(m_listText.back(), runs.front()))
            runs.erase(runs.begin());
        runs.insert(runs.begin(), m_listText.begin(), m_listText.end());
    }
    m_listText.clear();
    m_result.paragraphs.push_back(std::move(m_paragraph));
    m_paragraph = {};
}

void Reader::endDocument()
{
    flushText();
    const std::vector<Run>& runs = m_paragraph.runs;
    const auto isSeen = [](const Run& run) {
        const QByteArray& kept = run.verbatim;
        return !run.text.isEmpty() || kept.startsWith("{\\pict") || kept.startsWith("{\\*\\shppict") ||
               kept.startsWith("{\\object") || kept.startsWith("{\\shp");
    };
    const bool shows = !m_listText.empty() || std::any_of(runs.begin(), runs.end(), isSeen);
    if (m_result.paragraphs.empty() || shows) {
        endParagraph();
    } else { // nothing but kept groups behind the last paragraph
        std::vector<Run>& last = m_result.paragraphs.back().runs;
        const bool first = !runs.empty() && !last.empty() && joined(last.back(), runs.front());
        last.insert(last.end(), runs.begin() + (first ? 1 : 0), runs.end());
    }
}

/// What kept groups refer to stands in front of the header.
void Reader::keepTables()
{
    RtfReferences references;
    for (const QByteArray& kept : m_result.header)
        references.add(kept);
    for (const RichText::Paragraph& paragraph : m_result.paragraphs)
        for (const Run& run : paragraph.runs)
            if (!run.verbatim.isEmpty())
                references.add(run.verbatim);

    std::vector<QByteArray> tables;
    if (references.codePage && m_codePage != latinPage)
        tables.push_back("{\\ansicpg" + QByteArray::number(m_codePage) + '}');
    QByteArray fonts;
    for (const int number : references.fonts)
        if (const auto font = m_fonts.find(number); font != m_fonts.end())
            fonts += rtfFontEntry(number, font->second);
    if (!fonts.isEmpty())
        tables.push_back("{\\fonttbl" + fonts + '}');
    QByteArray colors;
    std::size_t written = 0;
    for (const int index : references.colors) {
        const auto at = static_cast<std::size_t>(index);
        if (at >= m_colors.size() || !m_colors[at])
            continue;
        colors.append(static_cast<qsizetype>(at - written), ';');
        colors += rtfColorEntry(m_colors[at]);
        written = at + 1;
    }
    if (!colors.isEmpty())
        tables.push_back("{\\colortbl" + colors + '}');
    m_result.header.insert(m_result.header.begin(), tables.begin(), tables.end());
}

/// The group that the word stands in, which ends with this; from the word on if it held anything before.
QByteArray Reader::takeGroup(const RtfToken& token)
{
    const bool whole =
        m_tooDeep == 0 && !group().written && group().characters.concealed == Characters::Concealed::No;
    const qsizetype word = m_star >= 0 ? m_star : token.begin;
    RtfKeptGroup kept = rtfKeptGroup(m_stream, whole ? group().begin + 1 : word);
    const int fallback = whole ? m_groups.at(m_groups.size() - 2).fallback : group().fallback;
    if (fallback != 1 && kept.bytes.contains("\\u")) {
        RtfScanner scanner(kept.bytes);
        while (scanner.next().kind != Kind::Word) {
        }
        kept.bytes.insert(scanner.offset(), "\\uc" + QByteArray::number(fallback) + ' ');
    }
    m_scanner.seek(kept.end);
    if (m_tooDeep > 0)
        --m_tooDeep;
    else
        closeGroup();
    return kept.bytes;
}

void Reader::skipGroup()
{
    const qsizetype end = rtfExcessBrace(m_stream, m_scanner.offset());
    m_scanner.seek(end < 0 ? m_stream.size() : end);
}

void Reader::placeGroup(const QByteArray& kept, bool withHeader)
{
    if (!isShown())
        return;
    if (group().isField && !m_fields.back().placed) {
        m_fields.back().code += kept;
    } else if (withHeader) {
        m_result.header.push_back(kept);
    } else {
        prepare();
        flushText();
        m_runs->push_back({formatOf(group().characters), {}, kept});
    }
}

void Reader::placeFields()
{
    flushText();
    for (; m_placedFields < m_fields.size(); ++m_placedFields) {
        Field& field = m_fields[m_placedFields];
        field.placed = true;
        m_runs->push_back({formatOf(field.characters), {}, field.code + '}'});
    }
}

void Reader::beginListText()
{
    if (!isShown() || m_tooDeep > 0 || m_runs == &m_listText)
        return;
    flushText();
    m_runs = &m_listText;
    group().written = group().isListText = true;
}

RtfCodePage& Reader::page()
{
    const int number = group().characters.font == noFont ? m_defaultFont : group().characters.font;
    const auto font = m_fonts.find(number);
    const int own = font == m_fonts.end() ? 0 : font->second.codePage;
    return m_pages.page(own ? own : m_codePage);
}

RichText::CharacterFormat Reader::formatOf(const Characters& characters) const
{
    RichText::CharacterFormat format;
    format.bold = characters.bold;
    format.italic = characters.italic;
    format.underline = characters.underline;
    format.strikethrough = characters.strikethrough;
    const auto font = m_fonts.find(characters.font == noFont ? m_defaultFont : characters.font);
    if (font != m_fonts.end())
        format.font = font->second.name;
    format.halfPoints = characters.halfPoints;
    if (characters.color >= 0 && static_cast<std::size_t>(characters.color) < m_colors.size())
        format.color = m_colors[static_cast<std::size_t>(characters.color)];
    return format;
}

RichText::ParagraphFormat Reader::formatOf(const ParagraphWords& words) const
{
    RichText::ParagraphFormat format;
    format.alignment = words.alignment;
    format.leftIndent = words.leftIndent;
    format.rightIndent = words.rightIndent;
    format.firstIndent = words.firstIndent;
    format.bullet = words.oldBullet;
    format.tabs.assign(words.tabs.begin(), words.tabs.end());
    return format;
}

/// Text of no format, a paragraph a line.
RichText readPlain(QByteArrayView stream)
{
    QString text;
    const auto isUtf8 = [&] {
        QStringDecoder decoder(QStringConverter::Utf8);
        text = decoder.decode(stream);
        text += QString(decoder.decode("\n")); // which tells a character that was cut off at the end
        text.chop(1);
        return !decoder.hasError();
    };
    if (stream.startsWith("\xFF\xFE") || stream.startsWith("\xFE\xFF")) {
        text = QStringDecoder(QStringConverter::Utf16).decode(stream);
    } else {
        while (stream.endsWith('\0'))
            stream.chop(1);
        if (!isUtf8())
            text = fromCodePage(stream);
    }
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n').replace(QChar::ParagraphSeparator, u'\n');
    RichText result;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        RichText::Paragraph& paragraph = result.paragraphs.emplace_back();
        QString shown;
        shown.reserve(line.size());
        for (const QChar c : line)
            if (const char16_t character = rtfTextCharacter(c.unicode()))
                shown += QChar(character);
        if (!shown.isEmpty())
            paragraph.runs.push_back({{}, shown, {}});
    }
    return result;
}

} // namespace

RichText readRtf(QByteArrayView stream)
{
    const QByteArrayView unmarked = stream.startsWith("\xEF\xBB\xBF") ? stream.sliced(3) : stream;
    return unmarked.startsWith("{\\rtf") ? Reader(unmarked).read() : readPlain(unmarked);
}

} // namespace varnhold
