#include "platform/richtext/RichTextFormats.h"

#include "platform/Twips.h"

#include <QBrush>
#include <QColor>

#include <algorithm>
#include <limits>

namespace varnhold {

namespace {

enum Property : int {
    LeftIndent = QTextFormat::UserProperty + 1,
    RightIndent,
    FirstIndent,
    Bullet,
    BulletIndent,
    Tabs,
    Verbatim,
    List,
    ListLevel,
    OldList,
    Number,
};

constexpr int leastBulletDistance = 12 * twipsPerPixel;
constexpr int leastRoom = 40 * twipsPerPixel; // for a line between its indents

double toPixels(int twips)
{
    return double(twips) / twipsPerPixel;
}

int toTwips(double pixels)
{
    return qRound(pixels * twipsPerPixel);
}

int distanceOfBullet(const RichText::ParagraphFormat& format)
{
    // A hanging first line holds the bullet; without one, or one too narrow, the text moves.
    return std::max({leastBulletDistance, format.bulletIndent, -format.firstIndent});
}

Qt::Alignment toQt(RichText::Alignment alignment)
{
    switch (alignment) {
    case RichText::Alignment::Center:
        return Qt::AlignHCenter;
    case RichText::Alignment::Right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case RichText::Alignment::Justify:
        return Qt::AlignJustify;
    case RichText::Alignment::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignAbsolute;
}

RichText::Alignment fromQt(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignHCenter)
        return RichText::Alignment::Center;
    if (alignment & Qt::AlignRight)
        return RichText::Alignment::Right;
    if (alignment & Qt::AlignJustify)
        return RichText::Alignment::Justify;
    return RichText::Alignment::Left;
}

/// Where a paragraph stands in the view, in twips.
struct Place
{
    int left;
    int first; ///< counted from left
    int right;
};

Place placeOf(const RichText::ParagraphFormat& format, int viewWidth)
{
    const int farthest =
        viewWidth > 0 ? std::max(viewWidth - leastRoom, 0) : std::numeric_limits<qint16>::max() * 4;
    Place place{};
    if (format.bullet) {
        const int bullet = distanceOfBullet(format);
        place.left =
            std::clamp(format.leftIndent + format.firstIndent + bullet, bullet, std::max(bullet, farthest));
    } else {
        place.left = std::clamp(format.leftIndent, 0, farthest);
        place.first = std::clamp(format.leftIndent + format.firstIndent, 0, farthest) - place.left;
    }
    const int inner = std::max(place.left, place.left + place.first);
    place.right = std::clamp(format.rightIndent, 0, std::max(farthest - inner, 0));
    return place;
}

void setTabs(QTextBlockFormat& block, const std::vector<int>& tabs, const Place& place)
{
    QList<QTextOption::Tab> positions;
    const int lineLeft = place.left + place.first;
    const auto add = [&](int tab) {
        // Kept from the margin; the toolkit counts from where a line begins.
        if (tab > lineLeft)
            positions.append(QTextOption::Tab(toPixels(tab - lineLeft), QTextOption::LeftTab));
    };
    const auto behind = std::lower_bound(tabs.begin(), tabs.end(), place.left);
    std::for_each(tabs.begin(), behind, add);
    if (place.first < 0) // the first tab of a line that hangs leads to the text below
        add(place.left);
    std::for_each(behind, tabs.end(), add);
    block.setTabPositions(positions);
}

/// A paragraph of the toolkit's, whose lengths are in the layout's properties alone.
bool isForeign(const QTextBlockFormat& block)
{
    return !block.hasProperty(LeftIndent) && !block.hasProperty(FirstIndent) &&
           !block.hasProperty(RightIndent) && !block.boolProperty(Bullet);
}

} // namespace

QTextBlockFormat toBlockFormat(const RichText::ParagraphFormat& format, int viewWidth)
{
    QTextBlockFormat block;
    if (format.alignment != RichText::Alignment::Left)
        block.setAlignment(toQt(format.alignment));
    const Place place = placeOf(format, viewWidth);
    if (format.bullet)
        block.setProperty(Bullet, true);
    if (format.leftIndent != 0)
        block.setProperty(LeftIndent, format.leftIndent);
    if (format.firstIndent != 0)
        block.setProperty(FirstIndent, format.firstIndent);
    if (format.rightIndent != 0)
        block.setProperty(RightIndent, format.rightIndent);
    if (format.bulletIndent != 0)
        block.setProperty(BulletIndent, format.bulletIndent);
    if (place.left != 0)
        block.setLeftMargin(toPixels(place.left));
    if (place.first != 0)
        block.setTextIndent(toPixels(place.first));
    if (place.right != 0)
        block.setRightMargin(toPixels(place.right));
    if (!format.tabs.empty())
        block.setProperty(Tabs, QVariant::fromValue(QList<int>(format.tabs.begin(), format.tabs.end())));
    if (!format.tabs.empty() || place.first < 0)
        setTabs(block, format.tabs, place);
    if (format.list != 0)
        block.setProperty(List, format.list);
    if (format.listLevel != 0)
        block.setProperty(ListLevel, format.listLevel);
    if (!format.oldList.isEmpty())
        block.setProperty(OldList, format.oldList);
    return block;
}

std::optional<QTextBlockFormat> fitFormat(const QTextBlockFormat& block, int viewWidth)
{
    if (isForeign(block))
        return std::nullopt;
    const QTextBlockFormat fit = toBlockFormat(toParagraphFormat(block), viewWidth);
    const bool isSame = fit.leftMargin() == block.leftMargin() && fit.rightMargin() == block.rightMargin() &&
                        fit.textIndent() == block.textIndent();
    return isSame ? std::nullopt : std::optional(fit);
}

RichText::ParagraphFormat toParagraphFormat(const QTextBlockFormat& block)
{
    RichText::ParagraphFormat format;
    format.alignment = fromQt(block.alignment());
    format.bullet = block.boolProperty(Bullet);
    format.bulletIndent = block.intProperty(BulletIndent);
    const auto tabs = block.property(Tabs).value<QList<int>>();
    format.tabs.assign(tabs.begin(), tabs.end());
    format.list = block.intProperty(List);
    format.listLevel = block.intProperty(ListLevel);
    format.oldList = block.property(OldList).toByteArray();
    const bool foreign = isForeign(block);
    format.rightIndent = foreign ? toTwips(block.rightMargin()) : block.intProperty(RightIndent);
    format.leftIndent = foreign ? toTwips(block.leftMargin()) : block.intProperty(LeftIndent);
    format.firstIndent = foreign ? toTwips(block.textIndent()) : block.intProperty(FirstIndent);
    return format;
}

QTextCharFormat toTextFormat(const RichText::CharacterFormat& format)
{
    QTextCharFormat text;
    if (format.bold)
        text.setFontWeight(QFont::Bold);
    if (format.italic)
        text.setFontItalic(true);
    if (format.underline)
        text.setFontUnderline(true);
    if (format.strikethrough)
        text.setFontStrikeOut(true);
    if (format.script != RichText::Script::Normal)
        text.setVerticalAlignment(format.script == RichText::Script::Super ? QTextCharFormat::AlignSuperScript
                                                                           : QTextCharFormat::AlignSubScript);
    if (!format.font.isEmpty())
        text.setFontFamilies({format.font});
    if (format.halfPoints > 0)
        text.setFontPointSize(format.halfPoints / 2.0);
    if (format.color) {
        const quint32 color = *format.color;
        text.setForeground(QColor(color & 0xFFU, color >> 8U & 0xFFU, color >> 16U & 0xFFU));
    }
    return text;
}

RichText::CharacterFormat toCharacterFormat(const QTextCharFormat& text)
{
    constexpr double halfPointsPerPixel = 1.5;
    RichText::CharacterFormat format;
    format.bold = text.fontWeight() > QFont::Medium;
    format.italic = text.fontItalic();
    format.underline = text.fontUnderline();
    format.strikethrough = text.fontStrikeOut();
    if (text.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        format.script = RichText::Script::Super;
    else if (text.verticalAlignment() == QTextCharFormat::AlignSubScript)
        format.script = RichText::Script::Sub;
    const QStringList families = text.fontFamilies().toStringList();
    if (!families.isEmpty())
        format.font = families.first();
    if (text.hasProperty(QTextFormat::FontPointSize))
        format.halfPoints = qRound(text.fontPointSize() * 2);
    else if (text.hasProperty(QTextFormat::FontPixelSize))
        format.halfPoints = qRound(text.intProperty(QTextFormat::FontPixelSize) * halfPointsPerPixel);
    if (format.halfPoints == RichText::ownHalfPoints)
        format.halfPoints = 0;
    if (text.hasProperty(QTextFormat::ForegroundBrush)) {
        const QRgb color = text.foreground().color().rgb();
        format.color = static_cast<quint32>(qRed(color)) | static_cast<quint32>(qGreen(color)) << 8U |
                       static_cast<quint32>(qBlue(color)) << 16U;
    }
    return format;
}

void setNumber(QTextCharFormat& format, const QString& number)
{
    format.setProperty(Number, number);
}

QString numberOf(const QTextCharFormat& format)
{
    return format.stringProperty(Number);
}

QTextCharFormat toVerbatimFormat(const RichText::CharacterFormat& format, const QByteArray& group)
{
    QTextCharFormat text = toTextFormat(format);
    text.setObjectType(verbatimObject);
    text.setProperty(Verbatim, group);
    return text;
}

QByteArray verbatimGroup(const QTextFormat& format)
{
    return format.objectType() == verbatimObject ? format.property(Verbatim).toByteArray() : QByteArray();
}

double bulletDistance(const RichText::ParagraphFormat& format)
{
    return format.bullet ? toPixels(distanceOfBullet(format)) : 0;
}

} // namespace varnhold
