#include "gamedb/LinkMarks.h"

#include "gamedb/LinkText.h"

#include <algorithm>

namespace varnhold {

namespace {

constexpr quint32 linkBlue = 0xFF0000;

/// One character a position: a return behind each paragraph, a line feed for a line break, a blank for a
/// verbatim group.
QString textByPosition(const RichText& text)
{
    QString plain;
    for (const RichText::Paragraph& paragraph : text.paragraphs) {
        for (const RichText::Run& run : paragraph.runs) {
            if (run.verbatim.isEmpty())
                plain += run.text;
            else
                plain += u' ';
        }
        plain += u'\r';
    }
    plain.replace(QChar::LineSeparator, u'\n');
    return plain;
}

/// The links in the order of the text, those that overlap as one.
std::vector<TextRange> linkRanges(const RichText& text)
{
    std::vector<TextRange> ranges = findLinks(textByPosition(text));
    std::ranges::sort(ranges, {}, &TextRange::start);
    std::vector<TextRange> apart;
    for (const TextRange& range : ranges) {
        if (apart.empty() || range.start > apart.back().start + apart.back().length)
            apart.push_back(range);
        else
            apart.back().length =
                std::max(apart.back().length, range.start + range.length - apart.back().start);
    }
    return apart;
}

qsizetype lengthOf(const RichText::Run& run)
{
    return run.verbatim.isEmpty() ? run.text.size() : 1;
}

class Marker
{
public:
    explicit Marker(std::vector<TextRange> links) : m_links(std::move(links)), m_link(m_links.begin()) {}

    bool mark(RichText& text)
    {
        for (RichText::Paragraph& paragraph : text.paragraphs) {
            qsizetype length = 0;
            for (const RichText::Run& run : paragraph.runs)
                length += lengthOf(run);
            if (m_link != m_links.end() && m_link->start < m_position + length)
                mark(paragraph.runs);
            else
                m_position += length;
            ++m_position;
        }
        return m_hasChanged;
    }

private:
    void mark(std::vector<RichText::Run>& runs)
    {
        std::vector<RichText::Run> marked;
        for (RichText::Run& run : runs) {
            const qsizetype end = m_position + lengthOf(run);
            qsizetype from = m_position;
            while (from < end) {
                const bool isLink = m_link != m_links.end() && m_link->start <= from;
                const qsizetype border = m_link == m_links.end() ? end
                                         : isLink                ? m_link->start + m_link->length
                                                                 : m_link->start;
                const qsizetype to = std::min(end, border);
                append(marked, run, from - m_position, to - from, isLink);
                if (isLink && to == border)
                    ++m_link;
                from = to;
            }
            m_position = end;
        }
        runs = std::move(marked);
    }

    void append(std::vector<RichText::Run>& marked, const RichText::Run& run, qsizetype from,
                qsizetype length, bool isLink)
    {
        RichText::CharacterFormat format = run.format;
        if (isLink) {
            format.underline = true;
            format.color = linkBlue;
            m_hasChanged = m_hasChanged || !(format == run.format);
        }
        const QString piece = run.text.mid(from, length);
        if (run.verbatim.isEmpty() && !marked.empty() && marked.back().verbatim.isEmpty() &&
            marked.back().format == format)
            marked.back().text += piece;
        else
            marked.push_back({format, piece, run.verbatim});
    }

    std::vector<TextRange> m_links;
    std::vector<TextRange>::const_iterator m_link;
    qsizetype m_position = 0;
    bool m_hasChanged = false;
};

} // namespace

bool markLinks(RichText& text)
{
    std::vector<TextRange> links = linkRanges(text);
    return !links.empty() && Marker(std::move(links)).mark(text);
}

} // namespace varnhold
