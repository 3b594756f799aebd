#pragma once

#include "platform/richtext/RichText.h"
#include "platform/richtext/RtfTables.h"
#include "platform/richtext/RtfWords.h"

#include <QList>

namespace varnhold {

struct RtfToken;

/// The size of characters for which a stream names none.
constexpr int rtfHalfPoints = 24;

/// The format of characters as the stream names it.
struct RtfCharacters
{
    enum class Concealed : unsigned char { No, Hidden, Deleted };

    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    Concealed concealed = Concealed::No;
    int font = rtfNoFont; ///< a number of the table; rtfNoFont: the document's default
    RichText::Script script = RichText::Script::Normal;
    int halfPoints = rtfHalfPoints;
    int color = -1; ///< an index of the table; -1: none
    bool operator==(const RtfCharacters&) const = default;

    /// A word from Plain to Color.
    void apply(RtfWord word, const RtfToken& token);
    [[nodiscard]] RichText::CharacterFormat format(const RtfTables& tables) const;
};

/// The format of paragraphs as the stream names it. Small to copy: each group holds one.
struct RtfParagraph
{
    RichText::Alignment alignment = RichText::Alignment::Left;
    int leftIndent = 0;
    int rightIndent = 0;
    int firstIndent = 0;
    bool oldBullet = false;
    bool oldNumber = false;
    int bulletIndent = 0;
    int list = 0; ///< \ls; 0: none
    int level = 0;
    QByteArray oldList; ///< the whole group \pn of a number
    QList<int> tabs;    ///< shared by the groups that do not change it

    /// A word from ParagraphDefaults to ListLevel.
    void apply(RtfWord word, const RtfToken& token);
    /// Bullets of the list tables are not told.
    [[nodiscard]] RichText::ParagraphFormat format() const;
};

} // namespace varnhold
