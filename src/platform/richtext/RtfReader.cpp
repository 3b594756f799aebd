#include "platform/richtext/RtfReader.h"

#include "platform/richtext/PlainNote.h"
#include "platform/richtext/RtfBody.h"
#include "platform/richtext/RtfCharsets.h"
#include "platform/richtext/RtfFormats.h"
#include "platform/richtext/RtfScanner.h"
#include "platform/richtext/RtfTables.h"
#include "platform/richtext/RtfText.h"
#include "platform/richtext/RtfWords.h"

#include <algorithm>
#include <utility>

namespace varnhold {

namespace {

using Kind = RtfToken::Kind;

constexpr std::size_t deepest = 16384; // groups; deeper ones are counted, their formats leak out
constexpr int longestFallback = 100;   // characters behind \u
constexpr int latinPage = 1252;

/// A group that is open.
struct Group
{
    RtfCharacters characters;
    RtfParagraph paragraph;
    int fallback = 1; // characters behind \u
    qsizetype begin = 0;
    bool written = false; // it has shown something or held a group
    bool isField = false;
    bool isFieldResult = false;
    bool isListText = false;
    bool isOldList = false;      // shows nothing, and so with its groups
    bool isOldListAlone = false; // and has shown nothing before
    bool isAlternatives = false; // the same, but for \ud
};

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
    void endWord(RtfWord word);
    void documentWord(const RtfWordMeaning& meaning, const RtfToken& token);
    void symbol(const RtfToken& token);

    void appendText(QByteArrayView text);
    void appendByte(unsigned char byte);
    void appendCharacter(char16_t character);
    void appendUnicode(int number);
    /// Before anything is shown.
    void show() { m_body = group().written = true; }
    void flushBytes();

    QByteArray takeGroup(const RtfToken& token);
    void skipGroup();
    QByteArray oldListAt(qsizetype begin);
    void placeGroup(const QByteArray& kept, bool withHeader);
    void beginListText();

    RtfCodePage& page();

    QByteArrayView m_stream;
    RtfScanner m_scanner;
    RtfTables m_tables;
    RtfBody m_content{m_tables};
    std::vector<QByteArray> m_header;
    std::vector<Group> m_groups{1}; // the first stands for what is outside
    qsizetype m_tooDeep = 0;        // open groups beyond those
    qsizetype m_star = -1;          // offset of the \* just read
    qsizetype m_fallback = 0;       // characters still to be passed over
    bool m_body = false;            // no longer in the header

    int m_codePage = latinPage;
    RtfCodePages m_pages;

    QByteArray m_bytes; // not yet text; of a multi-byte page
    RtfCodePage* m_bytesPage = nullptr;
    bool m_insideCharacter = false;
};

RichText Reader::read()
{
    for (RtfToken token = m_scanner.next(); token.kind != Kind::End && take(token);
         token = m_scanner.next()) {
    }
    flushBytes();
    const RtfParagraph last = group().paragraph; // those of a paragraph that has no end of its own
    while (m_groups.size() > 1)
        closeGroup();
    RichText text{std::move(m_header), m_content.take(last)};
    const std::vector<QByteArray> tables = rtfKeptTables(text, m_tables, m_codePage);
    text.header.insert(text.header.begin(), tables.begin(), tables.end());
    return text;
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
        m_scanner.setPage(&page());
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
            return rtfExcessBrace(m_stream, m_scanner.offset(), page()) >= 0;
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
    if (closed.isFieldResult)
        m_content.endFieldResult(closed.characters);
    if (closed.isField)
        m_content.endField();
    if (closed.isListText)
        m_content.endListText();
    if (closed.isOldList) {
        RtfParagraph& outer = group().paragraph;
        outer.bulletIndent = closed.paragraph.bulletIndent;
        if (closed.paragraph.oldBullet || closed.paragraph.oldNumber) {
            outer.oldBullet = closed.paragraph.oldBullet;
            outer.oldNumber = closed.paragraph.oldNumber;
            if (!group().isOldList)
                outer.oldList = closed.isOldListAlone ? oldListAt(closed.begin) : QByteArray();
        }
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
            if (meaning.word >= RtfWord::Paragraph)
                endWord(meaning.word);
            else if (meaning.word >= RtfWord::ParagraphDefaults)
                group().paragraph.apply(meaning.word, token);
            else if (meaning.word >= RtfWord::Plain)
                group().characters.apply(meaning.word, token);
            else
                documentWord(meaning, token);
            if (meaning.word == RtfWord::ParagraphDefaults)
                m_body = m_body || isShown();
        }
    }
    m_star = -1;
}

/// True when the word makes its group something that is no text of the body, or only part of it.
bool Reader::groupWord(RtfWord word, const RtfToken& token, bool ignorable)
{
    switch (word) {
    case RtfWord::FontTable:
        readRtfFonts(takeGroup(token), m_codePage, m_pages, m_tables.fonts);
        return true;
    case RtfWord::ColorTable:
        m_tables.colors = readRtfColors(takeGroup(token));
        return true;
    case RtfWord::ListTable:
    case RtfWord::ListOverrideTable: {
        // One that stands behind a part of the text was not known there.
        const bool isHeader = !m_body;
        const QByteArray kept = takeGroup(token);
        if (isHeader && word == RtfWord::ListTable)
            m_tables.lists.readTable(kept);
        else if (isHeader)
            m_tables.lists.readOverrides(kept);
        placeGroup(kept, isHeader);
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
        m_content.beginField(group().characters);
        return true;
    case RtfWord::FieldMark:
        if (group().isField && m_content.isInFieldCode())
            m_content.appendFieldCode('\\' + token.bytes.toByteArray());
        return true;
    case RtfWord::FieldResult:
        if (isShown() && m_tooDeep == 0 && !group().isFieldResult) {
            m_content.beginFieldResult();
            group().written = group().isFieldResult = true;
        }
        return true;
    case RtfWord::ListText:
        group().written = true;
        beginListText();
        return true;
    case RtfWord::OldList:
        group().isOldList = m_tooDeep == 0;
        group().isOldListAlone = !std::exchange(group().written, true);
        group().paragraph.oldBullet = group().paragraph.oldNumber = false;
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
    if (meaning.word != RtfWord::UnicodeSkip && meaning.word != RtfWord::Unknown)
        group().written = true; // not to be kept with a group that begins behind it
    switch (meaning.word) {
    case RtfWord::CodePage:
        if (meaning.value)
            m_codePage = meaning.value;
        break;
    case RtfWord::AnsiCodePage:
        m_codePage = RtfCodePages::knows(token.parameter) ? token.parameter : latinPage;
        break;
    case RtfWord::DefaultFont:
        m_tables.defaultFont = token.parameter;
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

/// A paragraph, page, cell or row ends.
void Reader::endWord(RtfWord word)
{
    if (!isShown())
        return;
    if (word == RtfWord::Page)
        m_content.endPage(group().characters);
    else if (m_content.isInListText())
        return;
    else if (word == RtfWord::Cell)
        m_content.endCell(group().characters);
    else
        m_content.endParagraph(group().paragraph);
    m_body = true;
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
    show();
    m_content.append(group().characters, text);
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
    show();
    m_bytesPage = &decoder;
    m_bytes += static_cast<char>(byte);
    m_insideCharacter = !m_insideCharacter && decoder.isLead(byte);
}

void Reader::appendCharacter(char16_t character)
{
    if (!isShown())
        return;
    show();
    m_content.append(group().characters, character);
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

void Reader::flushBytes()
{
    if (m_bytes.isEmpty())
        return;
    for (const QChar c : m_bytesPage->text(m_bytes))
        m_content.append(group().characters, c.unicode());
    m_bytes.clear();
    m_insideCharacter = false;
}

/// The group that the word stands in, which ends with this; from the word on if it held anything before.
QByteArray Reader::takeGroup(const RtfToken& token)
{
    const bool whole =
        m_tooDeep == 0 && !group().written && group().characters.concealed == RtfCharacters::Concealed::No;
    const qsizetype word = m_star >= 0 ? m_star : token.begin;
    RtfKeptGroup kept = rtfKeptGroup(m_stream, whole ? group().begin + 1 : word, page());
    const int fallback = whole ? m_groups.at(m_groups.size() - 2).fallback : group().fallback;
    if (fallback != 1 && kept.bytes.contains("\\u")) {
        RtfScanner scanner(kept.bytes);
        while (scanner.next().kind != Kind::Word) {
        }
        kept.bytes.insert(scanner.offset(), "\\uc" + QByteArray::number(fallback) + ' ');
    }
    m_scanner.seek(kept.end);
    group().isOldListAlone = false;
    if (m_tooDeep > 0)
        --m_tooDeep;
    else
        closeGroup();
    return kept.bytes;
}

void Reader::skipGroup()
{
    const qsizetype end = rtfExcessBrace(m_stream, m_scanner.offset(), page());
    m_scanner.seek(end < 0 ? m_stream.size() : end);
}

void Reader::placeGroup(const QByteArray& kept, bool withHeader)
{
    if (!isShown())
        return;
    if (group().isField && m_content.isInFieldCode()) {
        m_content.appendFieldCode(kept);
    } else if (withHeader) {
        m_header.push_back(kept);
    } else {
        show();
        m_content.append(group().characters, kept);
    }
}

/// Not one of any length: each paragraph behind it may have to write it again.
QByteArray Reader::oldListAt(qsizetype begin)
{
    constexpr qsizetype longestGroup = 256;
    if (m_scanner.offset() - begin > longestGroup)
        return {};
    const QByteArray kept = rtfKeptGroup(m_stream, begin + 1, page()).bytes;
    return kept.size() <= longestGroup ? kept : QByteArray();
}

void Reader::beginListText()
{
    if (!isShown() || m_tooDeep > 0 || m_content.isInListText())
        return;
    m_content.beginListText();
    group().isListText = true;
}

RtfCodePage& Reader::page()
{
    const int number = group().characters.font == rtfNoFont ? m_tables.defaultFont : group().characters.font;
    const auto font = m_tables.fonts.find(number);
    const int own = font == m_tables.fonts.end() ? 0 : font->second.codePage;
    return m_pages.page(own ? own : m_codePage);
}

} // namespace

RichText readRtf(QByteArrayView stream)
{
    const QByteArrayView unmarked = stream.startsWith("\xEF\xBB\xBF") ? stream.sliced(3) : stream;
    const auto* const begin = std::find_if_not(unmarked.begin(), unmarked.end(), [](char c) {
        return c == ' ' || c == '\t' || c == '\r' || c == '\n';
    });
    const QByteArrayView inked(begin, unmarked.end());
    return inked.startsWith("{\\rtf") ? Reader(inked).read() : readPlainNote(unmarked);
}

} // namespace varnhold
