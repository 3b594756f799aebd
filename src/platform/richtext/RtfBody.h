#pragma once

#include "platform/richtext/RichText.h"
#include "platform/richtext/RtfFormats.h"

#include <QByteArrayView>

#include <vector>

namespace varnhold {

/// Puts runs and paragraphs together from what a stream shows in its order.
class RtfBody
{
public:
    /// The tables may fill up later than what refers to them is begun.
    explicit RtfBody(const RtfTables& tables) : m_tables(tables) {}

    void append(const RtfCharacters& characters, QByteArrayView text); ///< 7-bit
    void append(const RtfCharacters& characters, char16_t character);
    /// A group that stays as it is.
    void append(const RtfCharacters& characters, const QByteArray& kept);
    void endParagraph(const RtfParagraph& paragraph);
    /// A tab, if anything follows in the row.
    void endCell(const RtfCharacters& characters);
    /// A break that shows only within a paragraph.
    void endPage(const RtfCharacters& characters);

    void beginField(const RtfCharacters& characters);
    /// Whether the field that was begun last still takes parts of its code; the first that it shows ends
    /// them.
    [[nodiscard]] bool isInFieldCode() const { return !m_fields.empty() && !m_fields.back().placed; }
    void appendFieldCode(const QByteArray& part) { m_fields.back().code += part; }
    void beginFieldResult() { placeFields(); }
    void endFieldResult(const RtfCharacters& characters);
    void endField();

    /// The paragraph's number or bullet.
    void beginListText();
    void endListText();
    [[nodiscard]] bool isInListText() const { return m_runs == &m_listText; }

    /// Ends the last paragraph. To be called once.
    std::vector<RichText::Paragraph> take(const RtfParagraph& last);

private:
    struct Field
    {
        QByteArray code;
        RtfCharacters characters;
        bool placed = false;
    };

    void prepare(const RtfCharacters& characters);
    void setCharacters(const RtfCharacters& characters);
    void flush();
    void placeFields();

    const RtfTables& m_tables;
    std::vector<RichText::Paragraph> m_paragraphs;
    RichText::Paragraph m_paragraph;
    std::vector<RichText::Run> m_listText;
    std::vector<RichText::Run>* m_runs = &m_paragraph.runs;
    QString m_text; // not yet a run; of the format m_characters
    RtfCharacters m_characters;
    bool m_cellEnded = false;
    std::vector<Field> m_fields;
    std::size_t m_placedFields = 0;
};

} // namespace varnhold
