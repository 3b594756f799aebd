#include "platform/richtext/RtfTables.h"

#include "platform/richtext/RtfScanner.h"
#include "platform/richtext/RtfText.h"

#include <algorithm>
#include <array>

namespace varnhold {

namespace {

using Kind = RtfToken::Kind;

constexpr int latinPage = 1252;

struct CharsetName
{
    int charset;
    QStringView ending;
};

/// Endings that some programs put behind a font's name to tell its character set.
constexpr CharsetName charsetNames[] = {
    {238, u" CE"},     {204, u" Cyr"},      {161, u" Greek"},    {162, u" Tur"},
    {186, u" Baltic"}, {177, u" (Hebrew)"}, {178, u" (Arabic)"}, {163, u" (Vietnamese)"},
};

QString withoutCharset(QString name, int charset)
{
    for (const CharsetName& one : charsetNames)
        while (charset == one.charset && name.endsWith(one.ending)) {
            name.chop(one.ending.size());
            name = name.trimmed();
        }
    return name;
}

QString fontName(QString name)
{
    name.removeIf([](QChar c) {
        return c == u';' || c < u' ' || rtfTextCharacter(c.unicode()) == QChar::LineSeparator;
    });
    return name.trimmed();
}

/// Collects one font after the other.
class FontTableReader
{
public:
    FontTableReader(int codePage, RtfCodePages& pages, RtfFonts& fonts)
        : m_codePage(codePage), m_pages(pages), m_fonts(fonts)
    {
    }

    void take(const RtfToken& token)
    {
        const qsizetype skip = std::exchange(m_skip, 0);
        switch (token.kind) {
        case Kind::Word:
            word(token);
            break;
        case Kind::Byte:
            if (skip == 0)
                m_bytes += static_cast<char>(token.byte);
            break;
        case Kind::Symbol:
            symbol(token.byte);
            break;
        case Kind::Text:
            for (qsizetype from = skip; from < token.bytes.size();) {
                const qsizetype semicolon = token.bytes.indexOf(';', from);
                const qsizetype end = semicolon < 0 ? token.bytes.size() : semicolon;
                m_bytes += token.bytes.sliced(from, end - from);
                if (semicolon >= 0)
                    finish();
                from = end + 1;
            }
            break;
        default:
            break;
        }
    }

    /// The end of the entry, by semicolon or by its group.
    void finish()
    {
        flush();
        const QString name = withoutCharset(fontName(m_name), m_font.charset);
        if (m_number && !name.isEmpty()) {
            m_font.name = name;
            m_fonts.insert_or_assign(*m_number, m_font);
        }
        m_number.reset();
        m_font = {};
        m_name.clear();
    }

private:
    void word(const RtfToken& token)
    {
        if (token.bytes == "f") {
            m_number = token.parameter;
        } else if (token.bytes == "fcharset") {
            m_font.charset = token.parameter;
            m_font.codePage = rtfCodePage(token.parameter);
        } else if (token.bytes == "cpg") {
            m_font.codePage = token.parameter;
        } else if (token.bytes == "u") {
            flush();
            m_name += QChar(static_cast<char16_t>(token.parameter));
            m_skip = 1;
        }
    }

    void symbol(unsigned char byte)
    {
        if (byte == '{' || byte == '}' || byte == '\\') {
            m_bytes += static_cast<char>(byte);
        } else if (const char16_t character = rtfSymbol(byte)) {
            flush();
            m_name += QChar(character);
        }
    }

    void flush()
    {
        if (m_bytes.isEmpty())
            return;
        if (std::all_of(m_bytes.cbegin(), m_bytes.cend(), [](char c) { return c >= 0; })) {
            m_name += QLatin1String(m_bytes); // the same in every page, which then need not be made
            m_bytes.clear();
            return;
        }
        RtfCodePage& page = m_pages.page(m_font.codePage ? m_font.codePage : m_codePage);
        if (page.isMultiByte())
            m_name += page.text(m_bytes);
        else
            for (const char byte : std::as_const(m_bytes))
                m_name += QChar(page.character(static_cast<unsigned char>(byte)));
        m_bytes.clear();
    }

    int m_codePage;
    RtfCodePages& m_pages;
    RtfFonts& m_fonts;
    std::optional<int> m_number;
    RtfFont m_font;
    QString m_name;
    QByteArray m_bytes;
    qsizetype m_skip = 0; // a fallback's character
};

} // namespace

void readRtfFonts(QByteArrayView group, int codePage, RtfCodePages& pages, RtfFonts& fonts)
{
    // Entries stand in the table's group or in a group of their own; what lies deeper, or is marked as
    // ignorable, says other things than the name.
    FontTableReader reader(codePage, pages, fonts);
    RtfScanner scanner(group);
    qsizetype depth = 0;
    bool opened = false;
    qsizetype ignored = 0; // depth of the group that is
    for (RtfToken token = scanner.next(); token.kind != Kind::End; token = scanner.next()) {
        if (token.kind == Kind::Open) {
            if (++depth > 2 && !ignored)
                ignored = depth;
        } else if (token.kind == Kind::Close) {
            if (depth <= 2 && !ignored)
                reader.finish();
            if (ignored == depth)
                ignored = 0;
            --depth;
        } else if (opened && depth == 2 && token.kind == Kind::Symbol && token.byte == '*') {
            ignored = depth;
        } else if (!ignored) {
            reader.take(token);
        }
        opened = token.kind == Kind::Open;
    }
}

RtfColors readRtfColors(QByteArrayView group)
{
    RtfColors colors;
    quint32 color = 0;
    bool given = false;
    RtfScanner scanner(group);
    for (RtfToken token = scanner.next(); token.kind != Kind::End; token = scanner.next()) {
        if (token.kind == Kind::Word) {
            const int shift = token.bytes == "red"     ? 0
                              : token.bytes == "green" ? 8
                              : token.bytes == "blue"  ? 16
                                                       : -1;
            if (shift < 0)
                continue;
            given = true;
            color = (color & ~(0xFFU << shift)) | static_cast<quint32>(std::clamp(token.parameter, 0, 255))
                                                      << shift;
        } else if (token.kind == Kind::Text) {
            for (auto left = std::count(token.bytes.begin(), token.bytes.end(), ';'); left > 0; --left) {
                colors.push_back(given ? std::optional(color) : std::nullopt);
                given = false;
                color = 0;
            }
        }
    }
    return colors;
}

QByteArray rtfFontEntry(int number, const RtfFont& font)
{
    QByteArray entry = "{\\f" + QByteArray::number(number) + "\\fnil";
    if (font.charset != 1)
        entry += "\\fcharset" + QByteArray::number(font.charset);
    if (font.codePage != rtfCodePage(font.charset))
        entry += "\\cpg" + QByteArray::number(font.codePage);
    entry += ' ';
    appendRtfText(entry, fontName(font.name), false);
    return entry + ";}";
}

QByteArray rtfColorEntry(const std::optional<quint32>& color)
{
    if (!color)
        return ";";
    return "\\red" + QByteArray::number(*color & 0xFF) + "\\green" + QByteArray::number(*color >> 8 & 0xFF) +
           "\\blue" + QByteArray::number(*color >> 16 & 0xFF) + ';';
}

void RtfLists::readTable(QByteArrayView group)
{
    constexpr int bulletNumbers = 23;
    constexpr std::size_t mostLevels = 9;
    std::vector<bool> levels;
    RtfScanner scanner(group);
    for (RtfToken token = scanner.next(); token.kind != Kind::End; token = scanner.next()) {
        if (token.kind != Kind::Word)
            continue;
        if (token.bytes == "list") {
            levels.clear();
        } else if (token.bytes == "listlevel" && levels.size() < mostLevels) {
            levels.push_back(false);
        } else if ((token.bytes == "levelnfc" || token.bytes == "levelnfcn") && !levels.empty()) {
            levels.back() = token.parameter == bulletNumbers;
        } else if (token.bytes == "listid") {
            m_levels[token.parameter] = levels;
        }
    }
}

void RtfLists::readOverrides(QByteArrayView group)
{
    int id = 0;
    RtfScanner scanner(group);
    for (RtfToken token = scanner.next(); token.kind != Kind::End; token = scanner.next()) {
        if (token.kind == Kind::Word && token.bytes == "listid")
            id = token.parameter;
        else if (token.kind == Kind::Word && token.bytes == "ls")
            m_ids[token.parameter] = id;
    }
}

std::optional<bool> RtfLists::isBullet(int list, int level) const
{
    const auto id = m_ids.find(list);
    const auto levels = m_levels.find(id == m_ids.end() ? list : id->second);
    if (levels == m_levels.end() || level < 0 || static_cast<std::size_t>(level) >= levels->second.size())
        return std::nullopt;
    return levels->second.at(static_cast<std::size_t>(level));
}

void RtfReferences::add(QByteArrayView group)
{
    static constexpr std::array fontWords = {"f", "af", "deff", "adeff", "pnf"};
    static constexpr std::array colorWords = {"cf",      "cb",    "highlight", "ulc",     "chcfpat",
                                              "chcbpat", "cfpat", "cbpat",     "clcfpat", "clcbpat",
                                              "brdrcf",  "pncf",  "trcfpat",   "trcbpat"};
    const auto isOne = [](const auto& words, QByteArrayView word) {
        return std::any_of(words.begin(), words.end(), [word](const char* one) { return word == one; });
    };
    RtfScanner scanner(group);
    for (RtfToken token = scanner.next(); token.kind != Kind::End; token = scanner.next()) {
        if (token.kind == Kind::Byte)
            codePage = codePage || token.byte >= 0x80;
        else if (token.kind != Kind::Word || !token.hasParameter || token.parameter < 0)
            continue;
        else if (isOne(fontWords, token.bytes))
            fonts.insert(token.parameter);
        else if (isOne(colorWords, token.bytes))
            colors.insert(token.parameter);
    }
}

void RtfReferences::add(const RichText::Paragraph& paragraph)
{
    add(paragraph.format.oldList);
    for (const RichText::Run& run : paragraph.runs)
        if (!run.verbatim.isEmpty())
            add(run.verbatim);
}

std::vector<QByteArray> rtfKeptTables(const RichText& text, const RtfTables& tables, int codePage)
{
    RtfReferences references;
    for (const QByteArray& kept : text.header)
        references.add(kept);
    for (const RichText::Paragraph& paragraph : text.paragraphs)
        references.add(paragraph);

    std::vector<QByteArray> groups;
    if (references.codePage && codePage != latinPage)
        groups.push_back("{\\ansicpg" + QByteArray::number(codePage) + '}');
    QByteArray fonts;
    for (const int number : references.fonts)
        if (const auto font = tables.fonts.find(number); font != tables.fonts.end())
            fonts += rtfFontEntry(number, font->second);
    if (!fonts.isEmpty())
        groups.push_back("{\\fonttbl" + fonts + '}');
    QByteArray colors;
    std::size_t written = 0;
    for (const int index : references.colors) {
        const auto at = static_cast<std::size_t>(index);
        if (at >= tables.colors.size() || !tables.colors[at])
            continue;
        colors.append(static_cast<qsizetype>(at - written), ';');
        colors += rtfColorEntry(tables.colors[at]);
        written = at + 1;
    }
    if (!colors.isEmpty())
        groups.push_back("{\\colortbl" + colors + '}');
    return groups;
}

} // namespace varnhold
