#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QRect>
#include <QStaticText>

class QPainter;

namespace varnhold {

/// Draws the texts of the rows. A text is shaped and shortened once and kept while rows come and go.
class MorphListTexts
{
public:
    void setFont(const QFont& font, qreal ratio); ///< the font in logical size
    void forget() { m_shaped.clear(); }

    /// Places are in device pixels. A text that is too long ends in an ellipsis.
    void paint(QPainter& painter, const QRect& place, const QString& text, const QColor& color,
               bool alignRight);
    /// The same with a line of that colour round the letters.
    void paintRimmed(QPainter& painter, const QRect& place, const QString& text, const QColor& color,
                     const QColor& rim, bool alignRight);

private:
    struct Shaped
    {
        QStaticText text;
        int width = 0;
    };

    const Shaped& shaped(const QString& text, int room);

    QFont m_logicalFont;
    QFont m_font; // in device pixels
    qreal m_ratio = 0;
    int m_room = 0;
    int m_height = 0;
    QHash<QString, Shaped> m_shaped;
};

} // namespace varnhold
