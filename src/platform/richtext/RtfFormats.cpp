#include "platform/richtext/RtfFormats.h"

#include "platform/richtext/RtfScanner.h"

#include <algorithm>

namespace varnhold {

namespace {

constexpr qsizetype mostTabs = 32; // a paragraph's; they are copied to each that follows
constexpr int longest = 31680;     // twips, 22 inches
constexpr int biggest = 3276;      // half-points

bool isOn(const RtfToken& word)
{
    return !word.hasParameter || word.parameter != 0;
}

int length(const RtfToken& word)
{
    return std::clamp(word.parameter, -longest, longest);
}

} // namespace

void RtfCharacters::apply(RtfWord word, const RtfToken& token)
{
    switch (word) {
    case RtfWord::Plain:
        *this = {};
        break;
    case RtfWord::Bold:
        bold = isOn(token);
        break;
    case RtfWord::Italic:
        italic = isOn(token);
        break;
    case RtfWord::Underline:
        underline = isOn(token);
        break;
    case RtfWord::NoUnderline:
        underline = false;
        break;
    case RtfWord::Strike:
        strikethrough = isOn(token);
        break;
    case RtfWord::Super:
    case RtfWord::Raised:
        script = isOn(token) ? RichText::Script::Super : RichText::Script::Normal;
        break;
    case RtfWord::Sub:
    case RtfWord::Lowered:
        script = isOn(token) ? RichText::Script::Sub : RichText::Script::Normal;
        break;
    case RtfWord::NormalScript:
        script = RichText::Script::Normal;
        break;
    case RtfWord::Hidden:
        concealed = isOn(token) ? Concealed::Hidden : Concealed::No;
        break;
    case RtfWord::Deleted:
        concealed = isOn(token) ? Concealed::Deleted : Concealed::No;
        break;
    case RtfWord::Font:
        font = token.parameter;
        break;
    case RtfWord::FontSize:
        halfPoints = token.parameter > 0 ? std::min(token.parameter, biggest) : rtfHalfPoints;
        break;
    case RtfWord::Color:
        color = token.parameter;
        break;
    default:
        break;
    }
}

RichText::CharacterFormat RtfCharacters::format(const RtfTables& tables) const
{
    RichText::CharacterFormat result;
    result.bold = bold;
    result.italic = italic;
    result.underline = underline;
    result.strikethrough = strikethrough;
    const auto named = tables.fonts.find(font == rtfNoFont ? tables.defaultFont : font);
    if (named != tables.fonts.end())
        result.font = named->second.name;
    result.script = script;
    result.halfPoints = halfPoints == RichText::ownHalfPoints ? 0 : halfPoints;
    if (color >= 0 && static_cast<std::size_t>(color) < tables.colors.size())
        result.color = tables.colors[static_cast<std::size_t>(color)];
    return result;
}

void RtfParagraph::apply(RtfWord word, const RtfToken& token)
{
    switch (word) {
    case RtfWord::ParagraphDefaults:
        *this = {};
        break;
    case RtfWord::Left:
        alignment = RichText::Alignment::Left;
        break;
    case RtfWord::Center:
        alignment = RichText::Alignment::Center;
        break;
    case RtfWord::Right:
        alignment = RichText::Alignment::Right;
        break;
    case RtfWord::Justify:
        alignment = RichText::Alignment::Justify;
        break;
    case RtfWord::LeftIndent:
        leftIndent = length(token);
        break;
    case RtfWord::RightIndent:
        rightIndent = length(token);
        break;
    case RtfWord::FirstIndent:
        firstIndent = length(token);
        break;
    case RtfWord::Tab: {
        const int tab = length(token);
        const auto at = std::lower_bound(tabs.cbegin(), tabs.cend(), tab);
        if (tab > 0 && tabs.size() < mostTabs && (at == tabs.cend() || *at != tab))
            tabs.insert(at, tab);
        break;
    }
    case RtfWord::OldListBullet:
        oldBullet = true;
        oldNumber = false;
        oldList.clear();
        break;
    case RtfWord::OldListNumber:
        oldBullet = false;
        oldNumber = true;
        oldList.clear();
        break;
    case RtfWord::OldListIndent:
        bulletIndent = std::max(length(token), 0);
        break;
    case RtfWord::List:
        list = std::max(token.parameter, 0);
        break;
    case RtfWord::ListLevel:
        level = std::max(token.parameter, 0);
        break;
    default:
        break;
    }
}

RichText::ParagraphFormat RtfParagraph::format() const
{
    RichText::ParagraphFormat result;
    result.alignment = alignment;
    result.leftIndent = leftIndent;
    result.rightIndent = rightIndent;
    result.firstIndent = firstIndent;
    result.bullet = oldBullet;
    result.list = list;
    result.listLevel = list > 0 ? level : 0;
    if (oldNumber)
        result.oldList = oldList;
    result.tabs.assign(tabs.begin(), tabs.end());
    return result;
}

} // namespace varnhold
