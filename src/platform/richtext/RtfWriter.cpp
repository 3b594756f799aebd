#include "platform/richtext/RtfWriter.h"

#include "platform/richtext/RtfFormats.h"
#include "platform/richtext/RtfTables.h"
#include "platform/richtext/RtfText.h"

#include <algorithm>
#include <map>

namespace varnhold {

namespace {

using Run = RichText::Run;

constexpr int latinPage = 1252;
constexpr int symbolCharset = 2;
const QString bulletFont = QStringLiteral("Symbol");

bool isSymbolFont(const QString& name)
{
    return name == bulletFont || name == u"Webdings" || name.startsWith(u"Wingdings");
}

/// Whether it begins with that word, and not with a longer one.
bool isGroup(const QByteArray& group, QByteArrayView begin)
{
    if (!group.startsWith(begin) || group.size() == begin.size())
        return false;
    const char next = group.at(begin.size());
    return (next < 'a' || next > 'z') && (next < 'A' || next > 'Z');
}

bool isFieldStart(const QByteArray& group)
{
    return isGroup(group, "{\\field");
}

bool isFieldEnd(const QByteArray& group)
{
    return group == "{\\fldrslt}";
}

/// What holds before any word, and behind \plain.
const RichText::CharacterFormat plainCharacters = [] {
    RichText::CharacterFormat format;
    format.halfPoints = rtfHalfPoints;
    return format;
}();

/// What the words written so far have switched on.
struct State
{
    RichText::CharacterFormat characters = plainCharacters;
    std::optional<RichText::ParagraphFormat> paragraph;
};

class Writer
{
public:
    explicit Writer(const RichText& text) : m_text(text) {}

    QByteArray write();

private:
    void collect();
    void pairFields();
    void head();
    void paragraph(const RichText::Paragraph& paragraph);
    void run(const Run& run);
    void characters(const RichText::CharacterFormat& format);
    void endNumber(const State& outside);
    void paragraphFormat(const RichText::ParagraphFormat& format);
    int fontNumber(const QString& name);
    int colorIndex(quint32 color);
    void word(const char* name, int parameter);

    const RichText& m_text;
    QByteArray m_stream;
    int m_codePage = latinPage;
    RtfReferences m_kept;
    RtfFonts m_fonts;
    std::map<QString, int> m_fontNumbers;
    int m_lastFont = -1;
    std::map<int, quint32> m_colors; // by index
    std::map<quint32, int> m_colorIndexes;
    int m_lastColor = 0;
    std::vector<bool> m_fieldMarks; // of the marks in their order: whether it has its other one
    std::size_t m_fieldMark = 0;
    State m_state;
    std::vector<State> m_fieldStates;
};

QByteArray Writer::write()
{
    collect();
    pairFields();
    head();
    for (const RichText::Paragraph& one : m_text.paragraphs)
        paragraph(one);
    return m_stream + "}\r\n";
}

/// Fonts and colours: those that kept groups refer to keep their numbers, the others come after.
void Writer::collect()
{
    RtfCodePages pages;
    for (const QByteArray& kept : m_text.header) {
        if (isGroup(kept, "{\\ansicpg")) {
            m_codePage = kept.sliced(9).chopped(1).toInt();
        } else if (isGroup(kept, "{\\fonttbl")) {
            readRtfFonts(kept, m_codePage, pages, m_fonts);
        } else if (isGroup(kept, "{\\colortbl")) {
            const RtfColors colors = readRtfColors(kept);
            for (std::size_t i = 0; i < colors.size(); ++i)
                if (colors[i])
                    m_colors[static_cast<int>(i)] = *colors[i];
        } else {
            m_kept.add(kept);
        }
    }
    bool bullets = false;
    for (const RichText::Paragraph& one : m_text.paragraphs)
        m_kept.add(one);
    for (const RichText::Paragraph& one : m_text.paragraphs) {
        bullets = bullets || (one.format.bullet && one.format.list == 0);
        for (const Run& run : one.runs) {
            if (!run.format.font.isEmpty())
                fontNumber(run.format.font);
            if (run.format.color)
                colorIndex(*run.format.color);
        }
    }
    if (bullets)
        fontNumber(bulletFont);
}

int Writer::fontNumber(const QString& name)
{
    const auto known = m_fontNumbers.find(name);
    if (known != m_fontNumbers.end())
        return known->second;
    do
        ++m_lastFont;
    while (m_kept.fonts.count(m_lastFont) > 0);
    m_fonts[m_lastFont] = {name, isSymbolFont(name) ? symbolCharset : 0, isSymbolFont(name) ? 0 : latinPage};
    m_fontNumbers[name] = m_lastFont;
    return m_lastFont;
}

int Writer::colorIndex(quint32 color)
{
    const auto known = m_colorIndexes.find(color);
    if (known != m_colorIndexes.end())
        return known->second;
    do
        ++m_lastColor;
    while (m_kept.colors.count(m_lastColor) > 0);
    m_colors[m_lastColor] = color;
    m_colorIndexes[color] = m_lastColor;
    return m_lastColor;
}

/// An edit may have taken one mark of a field away.
void Writer::pairFields()
{
    std::vector<std::size_t> open;
    for (const RichText::Paragraph& one : m_text.paragraphs)
        for (const Run& run : one.runs) {
            if (isFieldStart(run.verbatim)) {
                open.push_back(m_fieldMarks.size());
                m_fieldMarks.push_back(false);
            } else if (isFieldEnd(run.verbatim)) {
                m_fieldMarks.push_back(!open.empty());
                if (!open.empty()) {
                    m_fieldMarks.at(open.back()) = true;
                    open.pop_back();
                }
            }
        }
}

void Writer::head()
{
    m_stream = "{\\rtf1\\ansi\\ansicpg" + QByteArray::number(m_codePage) + "\\uc1";
    if (!m_fonts.empty()) {
        m_stream += "{\\fonttbl";
        for (const auto& [number, font] : m_fonts)
            m_stream += rtfFontEntry(number, font);
        m_stream += "}\r\n";
    }
    if (!m_colors.empty()) {
        m_stream += "{\\colortbl ";
        int next = 0;
        for (const auto& [index, color] : m_colors) {
            m_stream.append(index - next, ';');
            m_stream += rtfColorEntry(color);
            next = index + 1;
        }
        m_stream += "}\r\n";
    }
    for (const QByteArray& kept : m_text.header)
        if (!isGroup(kept, "{\\ansicpg") && !isGroup(kept, "{\\fonttbl") && !isGroup(kept, "{\\colortbl"))
            m_stream += kept + "\r\n";
}

void Writer::paragraph(const RichText::Paragraph& paragraph)
{
    paragraphFormat(paragraph.format);
    const bool isInTable = paragraph.format.list > 0;
    if (paragraph.format.bullet && isInTable)
        m_stream += "{\\listtext\\bullet\\tab}";
    else if (paragraph.format.bullet)
        m_stream += "{\\pntext\\f" + QByteArray::number(fontNumber(bulletFont)) + "\\'B7\\tab}";
    bool isInNumber = false;
    State outside;
    for (const Run& one : paragraph.runs) {
        if (one.isNumber != isInNumber) {
            if (one.isNumber) {
                m_stream += isInTable ? "{\\listtext " : "{\\pntext ";
                outside = m_state;
            } else {
                endNumber(outside);
            }
            isInNumber = one.isNumber;
        }
        run(one);
        paragraphFormat(paragraph.format);
    }
    if (isInNumber)
        endNumber(outside);
    m_stream += "\\par\r\n";
}

/// What its words switched on ends with the group.
void Writer::endNumber(const State& outside)
{
    m_stream += '}';
    m_state = outside;
}

void Writer::paragraphFormat(const RichText::ParagraphFormat& format)
{
    if (m_state.paragraph == format)
        return;
    m_state.paragraph = format;
    m_stream += "\\pard";
    switch (format.alignment) {
    case RichText::Alignment::Left:
        break;
    case RichText::Alignment::Center:
        m_stream += "\\qc";
        break;
    case RichText::Alignment::Right:
        m_stream += "\\qr";
        break;
    case RichText::Alignment::Justify:
        m_stream += "\\qj";
        break;
    }
    if (format.firstIndent)
        word("fi", format.firstIndent);
    if (format.leftIndent)
        word("li", format.leftIndent);
    if (format.rightIndent)
        word("ri", format.rightIndent);
    for (const int tab : format.tabs)
        word("tx", tab);
    if (format.list > 0) {
        word("ls", format.list);
        word("ilvl", format.listLevel);
    }
    if (!format.oldList.isEmpty()) {
        m_stream += format.oldList;
    } else if (format.bullet && format.list == 0) {
        m_stream += "{\\*\\pn\\pnlvlblt\\pnf" + QByteArray::number(fontNumber(bulletFont));
        word("pnindent", format.bulletIndent);
        m_stream += "{\\pntxtb\\'B7}}";
    } else {
        m_stream += ' ';
    }
}

void Writer::run(const Run& run)
{
    characters(run.format);
    if (isFieldStart(run.verbatim) && m_fieldMarks.at(m_fieldMark++)) {
        m_stream += run.verbatim.chopped(1) + "{\\fldrslt ";
        m_fieldStates.push_back(m_state);
    } else if (isFieldEnd(run.verbatim) && m_fieldMarks.at(m_fieldMark++)) {
        m_stream += "}}";
        m_state = m_fieldStates.back();
        m_fieldStates.pop_back();
    } else if (!run.verbatim.isEmpty()) {
        m_stream += run.verbatim;
    } else {
        appendRtfText(m_stream, run.text,
                      run.format.font.isEmpty() ? m_codePage == latinPage : !isSymbolFont(run.format.font));
    }
}

void Writer::characters(const RichText::CharacterFormat& format)
{
    RichText::CharacterFormat& current = m_state.characters;
    if (current == format)
        return;
    const qsizetype before = m_stream.size();
    if ((format.font.isEmpty() && !current.font.isEmpty()) || (!format.color && current.color)) {
        m_stream += "\\plain"; // the only way back to what is the box's own
        current = plainCharacters;
    }
    const auto toggle = [this](bool from, bool to, const char* on, const char* off) {
        if (from != to)
            m_stream += to ? on : off;
    };
    if (format.font != current.font)
        word("f", fontNumber(format.font));
    if (format.halfPoints != current.halfPoints)
        word("fs", format.halfPoints ? format.halfPoints : RichText::ownHalfPoints);
    if (format.color != current.color)
        word("cf", colorIndex(*format.color));
    toggle(current.bold, format.bold, "\\b", "\\b0");
    toggle(current.italic, format.italic, "\\i", "\\i0");
    toggle(current.underline, format.underline, "\\ul", "\\ulnone");
    toggle(current.strikethrough, format.strikethrough, "\\strike", "\\strike0");
    if (format.script != current.script)
        m_stream += format.script == RichText::Script::Super ? "\\super"
                    : format.script == RichText::Script::Sub ? "\\sub"
                                                             : "\\nosupersub";
    if (m_stream.size() > before)
        m_stream += ' ';
    current = format;
}

void Writer::word(const char* name, int parameter)
{
    m_stream += '\\';
    m_stream += name;
    m_stream += QByteArray::number(parameter);
}

} // namespace

QByteArray writeRtf(const RichText& text)
{
    return Writer(text).write();
}

} // namespace varnhold
