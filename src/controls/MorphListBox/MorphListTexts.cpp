#include "controls/MorphListBox/MorphListTexts.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace varnhold {

namespace {

constexpr qsizetype keptTexts = 1024;
constexpr int longText = 64; // a text up to this length is shaped as it is

} // namespace

void MorphListTexts::setFont(const QFont& font, qreal ratio)
{
    if (ratio == m_ratio && font == m_logicalFont)
        return;
    m_logicalFont = font;
    m_ratio = ratio;
    m_font = font;
    if (!qFuzzyCompare(ratio, 1.0)) {
        const qreal exact = QFontInfo(font).pixelSize() * ratio;
        const int whole = std::max(1, qRound(exact)); // fonts have no other sizes
        m_font.setPixelSize(whole);
        // A text that fits at ratio 1 must fit where the size was rounded up.
        const int stretch = font.stretch() == QFont::AnyStretch ? int(QFont::Unstretched) : font.stretch();
        if (whole > exact)
            m_font.setStretch(std::max(1, int(stretch * exact / whole)));
    }
    m_height = QFontMetrics(m_font).height();
    forget();
}

void MorphListTexts::paint(QPainter& painter, const QRect& place, const QString& text, const QColor& color,
                           bool alignRight)
{
    if (text.isEmpty() || place.isEmpty())
        return;
    const Shaped& entry = shaped(text, place.width());
    painter.setFont(m_font);
    painter.setPen(color);
    const int left = alignRight ? place.right() + 1 - entry.width : place.left();
    painter.drawStaticText(left, place.top() + (place.height() - m_height) / 2, entry.text);
}

void MorphListTexts::paintRimmed(QPainter& painter, const QRect& place, const QString& text,
                                 const QColor& color, const QColor& rim, bool alignRight)
{
    const int line = std::max(1, qRound(m_ratio));
    for (const QPoint offset : {QPoint(-line, -line), QPoint(0, -line), QPoint(line, -line), QPoint(-line, 0),
                                QPoint(line, 0), QPoint(-line, line), QPoint(0, line), QPoint(line, line)})
        paint(painter, place.translated(offset), text, rim, alignRight);
    paint(painter, place, text, color, alignRight);
}

const MorphListTexts::Shaped& MorphListTexts::shaped(const QString& text, int room)
{
    if (room != m_room || m_shaped.size() >= keptTexts) {
        m_shaped.clear();
        m_room = room;
    }
    const auto known = m_shaped.constFind(text);
    if (known != m_shaped.cend())
        return *known;

    const QFontMetrics metrics(m_font);
    // No more than what can show is shaped: a character takes a pixel at least, or next to none.
    QString shown = text.left(longText + 2 * qsizetype(room));
    shown.replace(u'\n', u' ');
    if (metrics.horizontalAdvance(shown) > room)
        shown = metrics.elidedText(shown, Qt::ElideRight, room);
    Shaped entry{QStaticText(shown), std::min(room, metrics.horizontalAdvance(shown))};
    entry.text.setTextFormat(Qt::PlainText);
    entry.text.setPerformanceHint(QStaticText::AggressiveCaching);
    entry.text.prepare({}, m_font);
    return *m_shaped.insert(text, entry);
}

} // namespace varnhold
