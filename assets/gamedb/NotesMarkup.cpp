#include "NotesMarkup.h"

#include <algorithm>
#include <stdexcept>

namespace varnhold::assets {

using namespace Qt::StringLiterals;

namespace {

constexpr int headingHalfPoints = 22;
constexpr int bulletIndent = 240;
constexpr int quotationIndent = 360;
constexpr int termWidth = 1320;

class Paragraph
{
public:
    RichText::ParagraphFormat format;
    RichText::CharacterFormat letters;

    void add(QStringView text)
    {
        for (const QChar character : text)
            add(character);
        if (m_ink || letters.bold != m_plain.bold || letters.italic != m_plain.italic ||
            letters.strikethrough != m_plain.strikethrough)
            throw std::runtime_error("a mark is not closed: " + text.toString().toStdString());
        flush();
    }
    /// What the marks start from and have to come back to.
    void begin(const RichText::CharacterFormat& plain) { m_plain = letters = plain; }
    RichText::Paragraph take() { return {format, std::move(m_runs)}; }

private:
    void add(QChar character)
    {
        if (m_ink && character == u'|' && !letters.color) {
            letters.color = inkOf(m_text);
            m_text.clear();
        } else if (character == u'{') {
            flush();
            m_ink = true;
        } else if (character == u'}' && m_ink) {
            flush();
            m_ink = false;
            letters.color = m_plain.color;
        } else if (character == u'*') {
            flip(letters.bold);
        } else if (character == u'_') {
            flip(letters.italic);
        } else if (character == u'~') {
            flip(letters.strikethrough);
        } else {
            m_text += character;
        }
    }
    void flip(bool& mark)
    {
        flush();
        mark = !mark;
    }
    void flush()
    {
        if (!m_text.isEmpty())
            m_runs.push_back({letters, m_text, {}});
        m_text.clear();
    }
    static quint32 inkOf(const QString& name)
    {
        const auto found = std::find_if(notesInks.begin(), notesInks.end(),
                                        [&](const NotesInk& ink) { return ink.name == name; });
        if (found == notesInks.end())
            throw std::runtime_error("there is no ink " + name.toStdString());
        return found->color;
    }

    std::vector<RichText::Run> m_runs;
    QString m_text;
    RichText::CharacterFormat m_plain;
    bool m_ink = false;
};

RichText::Paragraph paragraphOf(const QString& line)
{
    Paragraph paragraph;
    RichText::ParagraphFormat& format = paragraph.format;
    RichText::CharacterFormat plain;
    QString text = line;
    const auto takes = [&](QStringView mark) {
        if (!text.startsWith(mark))
            return false;
        text.remove(0, mark.size());
        return true;
    };
    if (takes(u"# ")) {
        plain.bold = true;
        plain.halfPoints = headingHalfPoints;
        plain.color = notesInks.front().color;
    } else if (takes(u"- ")) {
        format.bullet = true;
        format.bulletIndent = bulletIndent;
        format.leftIndent = bulletIndent;
        format.firstIndent = -bulletIndent;
    } else if (takes(u": ")) {
        format.leftIndent = termWidth;
        format.firstIndent = -termWidth;
        format.tabs = {termWidth};
        text = u'*' + text.replace(u" :: "_s, u"*\t"_s);
    } else if (takes(u"\" ")) {
        format.leftIndent = quotationIndent;
        format.rightIndent = quotationIndent;
        plain.italic = true;
    } else if (takes(u"^ ")) {
        format.alignment = RichText::Alignment::Center;
    } else if (takes(u">> ")) {
        format.alignment = RichText::Alignment::Right;
    }
    paragraph.begin(plain);
    paragraph.add(text);
    return paragraph.take();
}

} // namespace

const std::array<NotesInk, 4> notesInks{{
    {u"sea", 0xBF821F},
    {u"moss", 0x3B8D2F},
    {u"rust", 0x285BC9},
    {u"plum", 0xCA5AA9},
}};

RichText richNotes(const QStringList& lines)
{
    RichText notes;
    for (const QString& line : lines)
        notes.paragraphs.push_back(paragraphOf(line));
    return notes;
}

} // namespace varnhold::assets
