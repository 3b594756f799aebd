#include "platform/richtext/RichTextFormats.h"

#include "platform/Twips.h"

#include <QBrush>
#include <QColor>

#include <algorithm>

namespace varnhold {

namespace {

enum Property : int {
    LeftIndent = QTextFormat::UserProperty + 1,
    FirstIndent,
    Bullet,
    BulletIndent,
    Tabs,
    Verbatim,
};

constexpr int leastBulletDistance = 12 * twipsPerPixel;

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

/// `lineLeft` is the left edge of the first line.
void setTabs(QTextBlockFormat& block, const std::vector<int>& tabs, int lineLeft)
{
    block.setProperty(Tabs, QVariant::fromValue(QList<int>(tabs.begin(), tabs.end())));
    QList<QTextOption::Tab> positions;
    for (const int tab : tabs) {
        // Kept from the margin; the toolkit counts from where a line begins.
        if (tab > lineLeft)
            positions.append(QTextOption::Tab(toPixels(tab - lineLeft), QTextOption::LeftTab));
    }
    block.setTabPositions(positions);
}

} // namespace

QTextBlockFormat toBlockFormat(const RichText::ParagraphFormat& format)
{
    QTextBlockFormat block;
    if (format.alignment != RichText::Alignment::Left)
        block.setAlignment(toQt(format.alignment));
    int textLeft = format.leftIndent;
    if (format.bullet) {
        textLeft += format.firstIndent + distanceOfBullet(format);
        block.setProperty(Bullet, true);
    } else if (format.firstIndent != 0) {
        block.setTextIndent(toPixels(format.firstIndent));
    }
    if (format.leftIndent != 0)
        block.setProperty(LeftIndent, format.leftIndent);
    if (format.firstIndent != 0)
        block.setProperty(FirstIndent, format.firstIndent);
    if (format.bulletIndent != 0)
        block.setProperty(BulletIndent, format.bulletIndent);
    if (textLeft != 0)
        block.setLeftMargin(toPixels(textLeft));
    if (format.rightIndent != 0)
        block.setRightMargin(toPixels(format.rightIndent));
    if (!format.tabs.empty())
        setTabs(block, format.tabs, format.bullet ? textLeft : textLeft + format.firstIndent);
    return block;
}

RichText::ParagraphFormat toParagraphFormat(const QTextBlockFormat& block)
{
    RichText::ParagraphFormat format;
    format.alignment = fromQt(block.alignment());
    format.rightIndent = toTwips(block.rightMargin());
    format.bullet = block.boolProperty(Bullet);
    format.bulletIndent = block.intProperty(BulletIndent);
    const auto tabs = block.property(Tabs).value<QList<int>>();
    format.tabs.assign(tabs.begin(), tabs.end());
    const bool isForeign =
        !block.hasProperty(LeftIndent) && !block.hasProperty(FirstIndent) && !format.bullet;
    format.leftIndent = isForeign ? toTwips(block.leftMargin()) : block.intProperty(LeftIndent);
    format.firstIndent = isForeign ? toTwips(block.textIndent()) : block.intProperty(FirstIndent);
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
    const QStringList families = text.fontFamilies().toStringList();
    if (!families.isEmpty())
        format.font = families.first();
    if (text.hasProperty(QTextFormat::FontPointSize))
        format.halfPoints = qRound(text.fontPointSize() * 2);
    else if (text.hasProperty(QTextFormat::FontPixelSize))
        format.halfPoints = qRound(text.intProperty(QTextFormat::FontPixelSize) * halfPointsPerPixel);
    if (text.hasProperty(QTextFormat::ForegroundBrush)) {
        const QRgb color = text.foreground().color().rgb();
        format.color = static_cast<quint32>(qRed(color)) | static_cast<quint32>(qGreen(color)) << 8U |
                       static_cast<quint32>(qBlue(color)) << 16U;
    }
    return format;
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
