#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace varnhold {

/// Rich text as values, without a toolkit's document. Lengths are twips.
struct RichText
{
    enum class Alignment { Left, Center, Right, Justify };
    enum class Script : unsigned char { Normal, Super, Sub };

    /// The size in which a stream names the box's own, which is 11 pixels.
    static constexpr int ownHalfPoints = 17;

    struct CharacterFormat
    {
        bool bold = false;
        bool italic = false;
        bool underline = false;
        bool strikethrough = false;
        Script script = Script::Normal;
        QString font;                 ///< empty: the box's own
        int halfPoints = 0;           ///< size; 0: the box's own
        std::optional<quint32> color; ///< 0x00BBGGRR; none: the box's own
        bool operator==(const CharacterFormat&) const = default;
    };

    struct ParagraphFormat
    {
        Alignment alignment = Alignment::Left;
        int leftIndent = 0;
        int rightIndent = 0;
        int firstIndent = 0; ///< of the first line, counted from leftIndent; negative hangs
        bool bullet = false;
        int bulletIndent = 0; ///< from the bullet to its text; 0: as far as the first line hangs
        std::vector<int> tabs;
        int list = 0; ///< the number that list tables in the header know it by; 0: none
        int listLevel = 0;
        QByteArray oldList; ///< a whole group {\*\pn...} that tells how its number goes on; empty: none
        bool operator==(const ParagraphFormat&) const = default;
    };

    /// Characters of one format. Tabs are U+0009, line breaks inside a paragraph U+2028.
    struct Run
    {
        CharacterFormat format;
        QString text;
        /// A whole group "{...}" that is not understood here (a picture, a field's code), kept as it came;
        /// `text` is then empty.
        QByteArray verbatim;
        /// Belongs to the number that the paragraph's list shows in front of its text.
        bool isNumber = false;
        bool operator==(const Run&) const = default;
    };

    struct Paragraph
    {
        ParagraphFormat format;
        std::vector<Run> runs;
        bool operator==(const Paragraph&) const = default;
    };

    /// Unknown groups of the header, as they came: style sheet, information, list tables, generator.
    std::vector<QByteArray> header;
    std::vector<Paragraph> paragraphs; ///< at least one

    [[nodiscard]] QString plainText() const; ///< paragraphs joined by "\n"; verbatim groups have no text
    bool operator==(const RichText&) const = default;
};

} // namespace varnhold
