#pragma once

#include "controls/XP_ProgressBar/ProgressSurface.h"

#include <QStringList>

namespace varnhold::test {

/// Keeps what a look asks for, one line of text each: "fill 0,0-168,20 #ffffff". Colours are RRGGBB as a
/// reader knows them. A character of text is 6 x 10 pixels.
class RecordingSurface : public ProgressSurface
{
public:
    explicit RecordingSurface(QSize client) : m_client(client) {}

    [[nodiscard]] const QStringList& calls() const { return m_calls; }
    [[nodiscard]] QStringList callsOf(const QString& kind) const { return m_calls.filter(kind); }

    [[nodiscard]] QSize clientSize() const override { return m_client; }
    void fillRect(const BarRect& rect, ColorValue color) override { add("fill", rect, hex(color)); }
    void drawLine(QPoint from, QPoint to, ColorValue color) override
    {
        add("line", {from.x(), from.y(), to.x(), to.y()}, hex(color));
    }
    void drawEdge(const BarRect& rect, EdgeKind kind) override
    {
        add("edge", rect, QString::number(static_cast<int>(kind)));
    }
    void fillHatch(const BarRect& rect, int style, ColorValue color, ColorValue background) override
    {
        add("hatch", rect,
            QString::number(style) + QLatin1Char(' ') + hex(color) + QLatin1Char(' ') + hex(background));
    }
    void fillPicture(const BarRect& rect) override { add("picture", rect, {}); }
    [[nodiscard]] ColorValue pictureColor() const override { return 0x202020; }
    [[nodiscard]] QSize textSize(const QString& text) const override
    {
        return {6 * static_cast<int>(text.size()), 10};
    }
    void drawText(const BarRect& rect, const BarRect& clip, const QString& text, ColorValue color) override
    {
        if (!clip.isEmpty())
            add("text", clip, hex(color) + QStringLiteral(" at %1,%2 ").arg(rect.left).arg(rect.top) + text);
    }

private:
    static QString hex(ColorValue color)
    {
        const ColorValue plain = GetLngColor(color);
        const int rgb = redOf(plain) << 16 | greenOf(plain) << 8 | blueOf(plain);
        return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0'));
    }
    void add(const char* kind, const BarRect& r, const QString& rest)
    {
        m_calls << QStringLiteral("%1 %2,%3-%4,%5 %6")
                       .arg(QLatin1String(kind))
                       .arg(r.left)
                       .arg(r.top)
                       .arg(r.right)
                       .arg(r.bottom)
                       .arg(rest)
                       .trimmed();
    }

    QSize m_client;
    QStringList m_calls;
};

} // namespace varnhold::test
