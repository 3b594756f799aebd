#pragma once

#include <QByteArrayView>

namespace varnhold {

/// The control words that mean something here.
enum class RtfWord : unsigned char {
    Unknown,
    Character, ///< stands for one character
    // the document
    CodePage, ///< \mac and the like: the character is the code page
    AnsiCodePage,
    DefaultFont,
    Unicode,
    UnicodeSkip,
    // groups
    FontTable,
    ColorTable,
    ListTable,
    ListOverrideTable,
    HeaderGroup, ///< kept with the header wherever it stands
    BodyGroup,   ///< kept at its place
    PlacedGroup, ///< kept with the header before the body's beginning, at its place from there on
    SkippedGroup,
    Alternatives,       ///< \upr
    UnicodeAlternative, ///< \ud
    Field,
    FieldCode,
    FieldMark, ///< a word of \field itself
    FieldResult,
    ListText,
    OldList,     ///< \pn
    OldListText, ///< what stands before and behind its number
    // characters
    Plain,
    Bold,
    Italic,
    Underline,
    NoUnderline,
    Strike,
    Super,
    Sub,
    NormalScript,
    Raised,
    Lowered,
    Hidden,
    Deleted,
    Font,
    FontSize,
    Color,
    // paragraphs
    ParagraphDefaults,
    Left,
    Center,
    Right,
    Justify,
    LeftIndent,
    RightIndent,
    FirstIndent,
    Tab,
    OldListBullet,
    OldListNumber,
    OldListIndent,
    List,
    ListLevel,
    // what ends something
    Paragraph,
    Page,
    Cell,
    Row
};

struct RtfWordMeaning
{
    RtfWord word = RtfWord::Unknown;
    char16_t value = 0; ///< of Character and CodePage
};

RtfWordMeaning rtfWord(QByteArrayView name);

} // namespace varnhold
