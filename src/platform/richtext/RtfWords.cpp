#include "platform/richtext/RtfWords.h"

#include <array>

namespace varnhold {

namespace {

using W = RtfWord;

struct Entry
{
    QByteArrayView name;
    RtfWordMeaning meaning;
};

const Entry entries[] = {
    {"ansi", {W::CodePage, 0}},
    {"mac", {W::CodePage, 10000}},
    {"pc", {W::CodePage, 437}},
    {"pca", {W::CodePage, 850}},
    {"ansicpg", {W::AnsiCodePage, 0}},
    {"deff", {W::DefaultFont, 0}},
    {"u", {W::Unicode, 0}},
    {"uc", {W::UnicodeSkip, 0}},

    {"tab", {W::Character, u'\t'}},
    {"line", {W::Character, 0x2028}},
    {"lbr", {W::Character, 0x2028}},
    {"emdash", {W::Character, 0x2014}},
    {"endash", {W::Character, 0x2013}},
    {"emspace", {W::Character, 0x2003}},
    {"enspace", {W::Character, 0x2002}},
    {"qmspace", {W::Character, 0x2005}},
    {"bullet", {W::Character, 0x2022}},
    {"lquote", {W::Character, 0x2018}},
    {"rquote", {W::Character, 0x2019}},
    {"ldblquote", {W::Character, 0x201C}},
    {"rdblquote", {W::Character, 0x201D}},
    {"ltrmark", {W::Character, 0x200E}},
    {"rtlmark", {W::Character, 0x200F}},
    {"zwj", {W::Character, 0x200D}},
    {"zwnj", {W::Character, 0x200C}},
    {"zwbo", {W::Character, 0x200B}},
    {"zwnbo", {W::Character, 0x2060}},

    {"fonttbl", {W::FontTable, 0}},
    {"colortbl", {W::ColorTable, 0}},
    {"listtable", {W::ListTable, 0}},
    {"listoverridetable", {W::ListOverrideTable, 0}},
    {"stylesheet", {W::HeaderGroup, 0}},
    {"info", {W::HeaderGroup, 0}},
    {"filetbl", {W::HeaderGroup, 0}},
    {"revtbl", {W::HeaderGroup, 0}},
    {"rsidtbl", {W::HeaderGroup, 0}},
    {"listpicture", {W::HeaderGroup, 0}},
    {"pgptbl", {W::HeaderGroup, 0}},
    {"generator", {W::HeaderGroup, 0}},
    {"userprops", {W::HeaderGroup, 0}},
    {"xmlnstbl", {W::HeaderGroup, 0}},
    {"mmathPr", {W::HeaderGroup, 0}},
    {"themedata", {W::HeaderGroup, 0}},
    {"colorschememapping", {W::HeaderGroup, 0}},
    {"latentstyles", {W::HeaderGroup, 0}},
    {"datastore", {W::HeaderGroup, 0}},
    {"defchp", {W::HeaderGroup, 0}},
    {"defpap", {W::HeaderGroup, 0}},
    {"background", {W::HeaderGroup, 0}},
    {"wgrffmtfilter", {W::HeaderGroup, 0}},
    {"pict", {W::BodyGroup, 0}},
    {"shppict", {W::BodyGroup, 0}},
    {"nonshppict", {W::BodyGroup, 0}},
    {"shp", {W::BodyGroup, 0}},
    {"shpgrp", {W::BodyGroup, 0}},
    {"do", {W::BodyGroup, 0}},
    {"object", {W::BodyGroup, 0}},
    {"footnote", {W::BodyGroup, 0}},
    {"annotation", {W::BodyGroup, 0}},
    {"atnid", {W::BodyGroup, 0}},
    {"atnauthor", {W::BodyGroup, 0}},
    {"atrfstart", {W::BodyGroup, 0}},
    {"atrfend", {W::BodyGroup, 0}},
    {"bkmkstart", {W::BodyGroup, 0}},
    {"bkmkend", {W::BodyGroup, 0}},
    {"xe", {W::BodyGroup, 0}},
    {"rxe", {W::BodyGroup, 0}},
    {"tc", {W::BodyGroup, 0}},
    {"tcn", {W::BodyGroup, 0}},
    {"txe", {W::BodyGroup, 0}},
    {"header", {W::PlacedGroup, 0}},
    {"headerl", {W::PlacedGroup, 0}},
    {"headerr", {W::PlacedGroup, 0}},
    {"headerf", {W::PlacedGroup, 0}},
    {"footer", {W::PlacedGroup, 0}},
    {"footerl", {W::PlacedGroup, 0}},
    {"footerr", {W::PlacedGroup, 0}},
    {"footerf", {W::PlacedGroup, 0}},
    {"ftnsep", {W::PlacedGroup, 0}},
    {"ftnsepc", {W::PlacedGroup, 0}},
    {"ftncn", {W::PlacedGroup, 0}},
    {"aftnsep", {W::PlacedGroup, 0}},
    {"aftnsepc", {W::PlacedGroup, 0}},
    {"aftncn", {W::PlacedGroup, 0}},
    {"template", {W::PlacedGroup, 0}},
    {"private", {W::PlacedGroup, 0}},
    {"nonesttables", {W::SkippedGroup, 0}},
    {"upr", {W::Alternatives, 0}},
    {"ud", {W::UnicodeAlternative, 0}},
    {"field", {W::Field, 0}},
    {"fldinst", {W::FieldCode, 0}},
    {"fldrslt", {W::FieldResult, 0}},
    {"fldlock", {W::FieldMark, 0}},
    {"flddirty", {W::FieldMark, 0}},
    {"fldedit", {W::FieldMark, 0}},
    {"fldpriv", {W::FieldMark, 0}},
    {"listtext", {W::ListText, 0}},
    {"pntext", {W::ListText, 0}},
    {"pn", {W::OldList, 0}},
    {"pntxta", {W::OldListText, 0}},
    {"pntxtb", {W::OldListText, 0}},

    {"plain", {W::Plain, 0}},
    {"b", {W::Bold, 0}},
    {"i", {W::Italic, 0}},
    {"ul", {W::Underline, 0}},
    {"uld", {W::Underline, 0}},
    {"uldash", {W::Underline, 0}},
    {"uldashd", {W::Underline, 0}},
    {"uldashdd", {W::Underline, 0}},
    {"uldb", {W::Underline, 0}},
    {"ulhair", {W::Underline, 0}},
    {"ulhwave", {W::Underline, 0}},
    {"ulldash", {W::Underline, 0}},
    {"ulth", {W::Underline, 0}},
    {"ulthd", {W::Underline, 0}},
    {"ulthdash", {W::Underline, 0}},
    {"ulthdashd", {W::Underline, 0}},
    {"ulthdashdd", {W::Underline, 0}},
    {"ulthldash", {W::Underline, 0}},
    {"ululdbwave", {W::Underline, 0}},
    {"ulw", {W::Underline, 0}},
    {"ulwave", {W::Underline, 0}},
    {"ulnone", {W::NoUnderline, 0}},
    {"strike", {W::Strike, 0}},
    {"striked", {W::Strike, 0}},
    {"super", {W::Super, 0}},
    {"sub", {W::Sub, 0}},
    {"nosupersub", {W::NormalScript, 0}},
    {"up", {W::Raised, 0}},
    {"dn", {W::Lowered, 0}},
    {"v", {W::Hidden, 0}},
    {"deleted", {W::Deleted, 0}},
    {"f", {W::Font, 0}},
    {"fs", {W::FontSize, 0}},
    {"cf", {W::Color, 0}},

    {"pard", {W::ParagraphDefaults, 0}},
    {"ql", {W::Left, 0}},
    {"qc", {W::Center, 0}},
    {"qr", {W::Right, 0}},
    {"qj", {W::Justify, 0}},
    {"qd", {W::Justify, 0}},
    {"qt", {W::Justify, 0}},
    {"li", {W::LeftIndent, 0}},
    {"ri", {W::RightIndent, 0}},
    {"fi", {W::FirstIndent, 0}},
    {"tx", {W::Tab, 0}},
    {"pnlvlblt", {W::OldListBullet, 0}},
    {"pnlvl", {W::OldListNumber, 0}},
    {"pnlvlbody", {W::OldListNumber, 0}},
    {"pnlvlcont", {W::OldListNumber, 0}},
    {"pnindent", {W::OldListIndent, 0}},
    {"ls", {W::List, 0}},
    {"ilvl", {W::ListLevel, 0}},

    {"par", {W::Paragraph, 0}},
    {"sect", {W::Paragraph, 0}},
    {"page", {W::Page, 0}},
    {"column", {W::Page, 0}},
    {"cell", {W::Cell, 0}},
    {"nestcell", {W::Cell, 0}},
    {"row", {W::Row, 0}},
    {"nestrow", {W::Row, 0}},
};

constexpr std::size_t slots = 512; // a power of two, four times the words
static_assert(slots > 3 * std::size(entries));

std::size_t slotOf(QByteArrayView name)
{
    std::size_t hash = 0;
    for (const char c : name)
        hash = hash * 31 + static_cast<unsigned char>(c);
    return (hash ^ (hash >> 9)) % slots;
}

std::array<const Entry*, slots> placed()
{
    std::array<const Entry*, slots> table{};
    for (const Entry& entry : entries) {
        std::size_t slot = slotOf(entry.name);
        while (table.at(slot))
            slot = (slot + 1) % slots;
        table.at(slot) = &entry;
    }
    return table;
}

} // namespace

RtfWordMeaning rtfWord(QByteArrayView name)
{
    static const std::array<const Entry*, slots> table = placed();
    for (std::size_t slot = slotOf(name); table[slot]; slot = (slot + 1) % slots)
        if (table[slot]->name == name)
            return table[slot]->meaning;
    return {};
}

} // namespace varnhold
