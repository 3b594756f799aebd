#include "app/PlainStyle.h"

#include "app/PlainColors.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

namespace varnhold::plainlook {

using namespace Qt::StringLiterals;

PlainStyle::PlainStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

void PlainStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton &&
        element != PE_IndicatorItemViewItemCheck) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    constexpr int side = 12;
    const bool on = (option->state & State_On) != 0;
    const bool lit = (option->state & (State_MouseOver | State_HasFocus)) != 0;
    QRectF box(0, 0, side - 1, side - 1);
    box.moveCenter(QRectF(option->rect).center());
    box.moveTopLeft(QPointF(box.topLeft().toPoint()) + QPointF(0.5, 0.5));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(lit || on ? accent : QColor(0x6d8bbd), 1));
    painter->setBrush(panel);
    if (element == PE_IndicatorRadioButton) {
        painter->drawEllipse(box);
        painter->setPen(Qt::NoPen);
        painter->setBrush(accent);
        if (on)
            painter->drawEllipse(box.adjusted(3, 3, -3, -3));
    } else {
        painter->drawRoundedRect(box, 2, 2);
        QPainterPath tick(box.topLeft() + QPointF(2.5, 5.5));
        tick.lineTo(box.topLeft() + QPointF(4.8, 8));
        tick.lineTo(box.topLeft() + QPointF(8.8, 3));
        painter->setPen(QPen(accent, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        if (on)
            painter->drawPath(tick);
    }
    painter->restore();
}

} // namespace varnhold::plainlook
