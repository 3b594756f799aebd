#include "platform/richtext/RtfBody.h"

#include "platform/richtext/RtfText.h"

#include <algorithm>

namespace varnhold {

namespace {

using Run = RichText::Run;

const QByteArray hiddenText = QByteArrayLiteral("{\\v ");
const QByteArray deletedText = QByteArrayLiteral("{\\deleted ");

/// Appends a run to the one in front of it, if they are of one kind.
bool joined(Run& run, const Run& next)
{
    if (run.format != next.format || run.verbatim.isEmpty() != next.verbatim.isEmpty() ||
        run.isNumber != next.isNumber)
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

/// Headings of a list that counts nothing bring a tab alone.
bool showsSomething(const Run& run)
{
    return !run.verbatim.isEmpty() || !run.text.trimmed().isEmpty();
}

} // namespace

void RtfBody::append(const RtfCharacters& characters, QByteArrayView text)
{
    prepare(characters);
    m_text += QLatin1String(text.data(), text.size());
}

void RtfBody::append(const RtfCharacters& characters, char16_t character)
{
    character = rtfTextCharacter(character);
    if (character == 0)
        return;
    prepare(characters);
    m_text += QChar(character);
}

void RtfBody::append(const RtfCharacters& characters, const QByteArray& kept)
{
    prepare(characters);
    flush();
    m_runs->push_back({characters.format(m_tables), {}, kept});
}

/// Before anything is shown.
void RtfBody::prepare(const RtfCharacters& characters)
{
    if (m_cellEnded) {
        m_cellEnded = false;
        setCharacters(characters);
        m_text += u'\t';
    }
    if (m_placedFields < m_fields.size())
        placeFields();
    setCharacters(characters);
}

void RtfBody::setCharacters(const RtfCharacters& characters)
{
    if (m_characters == characters)
        return;
    flush();
    m_characters = characters;
}

void RtfBody::flush()
{
    if (m_text.isEmpty())
        return;
    Run run;
    run.format = m_characters.format(m_tables);
    if (m_characters.concealed == RtfCharacters::Concealed::No) {
        run.text = QString(m_text.constData(), m_text.size());
    } else {
        run.verbatim = m_characters.concealed == RtfCharacters::Concealed::Hidden ? hiddenText : deletedText;
        appendRtfText(run.verbatim, m_text, false);
        run.verbatim += '}';
    }
    if (m_runs->empty() || !joined(m_runs->back(), run))
        m_runs->push_back(std::move(run));
    m_text.resize(0); // keeps its memory
}

void RtfBody::endCell(const RtfCharacters& characters)
{
    prepare(characters);
    m_cellEnded = true;
}

void RtfBody::endPage(const RtfCharacters& characters)
{
    if (!m_text.isEmpty() || !m_paragraph.runs.empty())
        append(characters, QChar::LineSeparator);
}

void RtfBody::endParagraph(const RtfParagraph& paragraph)
{
    constexpr QStringView bullets = u"\u2022\u00B7\uF0B7\u25CF\u25E6\u25AA\u25A0\u2043\u2219\uF0A7";
    flush();
    m_cellEnded = false;
    m_paragraph.format = paragraph.format();
    RichText::ParagraphFormat& format = m_paragraph.format;
    bool& bullet = format.bullet;
    const auto listed =
        paragraph.list > 0 ? m_tables.lists.isBullet(paragraph.list, paragraph.level) : std::nullopt;
    if (listed) {
        bullet = *listed;
    } else if (!bullet && (format.list > 0 || !paragraph.oldNumber) && m_listText.size() == 1) {
        const QString text = m_listText.front().text.trimmed();
        bullet = text.size() == 1 && bullets.contains(text.front());
    }
    if (bullet || format.list > 0)
        format.oldList.clear();
    const bool isNumbered = format.list > 0 || !format.oldList.isEmpty();
    if (bullet) {
        format.bulletIndent = format.list > 0 ? 0 : paragraph.bulletIndent;
    } else if (!isNumbered || std::any_of(m_listText.begin(), m_listText.end(), showsSomething)) {
        // A field that begins in a number need not end in it.
        const bool isText = std::all_of(m_listText.begin(), m_listText.end(),
                                        [](const Run& run) { return run.verbatim.isEmpty(); });
        for (Run& run : m_listText)
            run.isNumber = isNumbered && isText;
        std::vector<Run>& runs = m_paragraph.runs;
        if (!m_listText.empty() && !runs.empty() && joined(m_listText.back(), runs.front()))
            runs.erase(runs.begin());
        runs.insert(runs.begin(), m_listText.begin(), m_listText.end());
    }
    m_listText.clear();
    m_paragraphs.push_back(std::move(m_paragraph));
    m_paragraph = {};
}

std::vector<RichText::Paragraph> RtfBody::take(const RtfParagraph& last)
{
    flush();
    const std::vector<Run>& runs = m_paragraph.runs;
    const auto isSeen = [](const Run& run) {
        const QByteArray& kept = run.verbatim;
        return !run.text.isEmpty() || kept.startsWith("{\\pict") || kept.startsWith("{\\*\\shppict") ||
               kept.startsWith("{\\object") || kept.startsWith("{\\shp");
    };
    const bool shows = !m_listText.empty() || std::any_of(runs.begin(), runs.end(), isSeen);
    if (m_paragraphs.empty() || shows) {
        endParagraph(last);
    } else { // nothing but kept groups behind the last paragraph
        std::vector<Run>& before = m_paragraphs.back().runs;
        const bool first = !runs.empty() && !before.empty() && joined(before.back(), runs.front());
        before.insert(before.end(), runs.begin() + (first ? 1 : 0), runs.end());
    }
    return std::move(m_paragraphs);
}

void RtfBody::beginField(const RtfCharacters& characters)
{
    m_fields.push_back({"{\\field", characters, false});
}

/// Those that have not shown yet, from the outermost on.
void RtfBody::placeFields()
{
    flush();
    for (; m_placedFields < m_fields.size(); ++m_placedFields) {
        Field& field = m_fields[m_placedFields];
        field.placed = true;
        m_runs->push_back({field.characters.format(m_tables), {}, field.code + '}'});
    }
}

void RtfBody::endFieldResult(const RtfCharacters& characters)
{
    flush();
    m_runs->push_back({characters.format(m_tables), {}, "{\\fldrslt}"});
}

void RtfBody::endField()
{
    if (!m_fields.back().placed)
        placeFields();
    m_fields.pop_back();
    m_placedFields = std::min(m_placedFields, m_fields.size());
}

void RtfBody::beginListText()
{
    flush();
    m_runs = &m_listText;
}

void RtfBody::endListText()
{
    flush();
    m_runs = &m_paragraph.runs;
}

} // namespace varnhold
