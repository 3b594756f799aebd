#include "appearance/ToolkitStyle.h"

#include "appearance/ScrollBarLook.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// A sign in a ring, in the colour of texts.
QPixmap messageSign(QChar sign, const QColor& color, qreal ratio)
{
    constexpr int side = 32;
    constexpr int letter = 18;
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 2));
    painter.drawEllipse(QRectF(2, 2, side - 4, side - 4));
    QFont font = QApplication::font();
    font.setPixelSize(letter);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRectF(0, 0, side, side), Qt::AlignCenter, sign);
    return picture;
}

void drawFocusLine(QPainter& painter, const QRect& place, const QPalette& colors)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(colors.color(QPalette::Link));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

void ToolkitStyle::setScrollBarDesign(const MorphListDesign& design)
{
    m_scrollBars = design;
    for (QWidget* const widget : QApplication::allWidgets()) {
        if (qobject_cast<QScrollBar*>(widget) != nullptr)
            widget->update();
    }
}

ToolkitStyle::ToolkitStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

void ToolkitStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    const QPalette& colors = option->palette;
    if (element == PE_PanelLineEdit || element == PE_Frame) {
        if (element == PE_PanelLineEdit)
            painter->fillRect(option->rect, colors.base());
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame == nullptr || frame->lineWidth > 0) {
            const bool lit = (option->state & State_HasFocus) != 0;
            painter->save();
            painter->setPen(lit ? colors.color(QPalette::Link) : colors.color(QPalette::Mid));
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            painter->restore();
        }
        return;
    }
    if (element == PE_FrameFocusRect) {
        // A view whose chosen row is the current one has its line round the whole.
        const auto* const view = qobject_cast<const QAbstractItemView*>(widget);
        if (view == nullptr || view->selectionMode() != QAbstractItemView::SingleSelection)
            drawFocusLine(*painter, option->rect, colors);
        return;
    }
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton &&
        element != PE_IndicatorItemViewItemCheck) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const QColor accent = colors.color(QPalette::Link);
    constexpr int side = 12;
    const bool on = (option->state & State_On) != 0;
    const bool lit = (option->state & (State_MouseOver | State_HasFocus)) != 0;
    QRectF box(0, 0, side - 1, side - 1);
    box.moveCenter(QRectF(option->rect).center());
    box.moveTopLeft(QPointF(box.topLeft().toPoint()) + QPointF(0.5, 0.5));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(lit || on ? accent : colors.color(QPalette::Dark), 1));
    painter->setBrush(colors.window());
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

void ToolkitStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr)
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    else if (bar->orientation == Qt::Vertical && bar->rect.height() <= 3 * bar->rect.width())
        drawPickBar(*bar, *painter);
    else
        drawScrollBar(*bar, *painter, widget);
}

void ToolkitStyle::drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                                 const QWidget* widget) const
{
    const auto part = [&](SubControl which) {
        const bool pressed = (bar.activeSubControls & which) != 0 && (bar.state & State_Sunken) != 0;
        return ScrollBarLook::Part{subControlRect(CC_ScrollBar, &bar, which, widget), pressed};
    };
    const ScrollBarLook::Part before = part(SC_ScrollBarSubPage);
    const ScrollBarLook::Part after = part(SC_ScrollBarAddPage);
    const bool hasRoom = bar.maximum > bar.minimum;
    paintScrollBar(painter,
                   {.less = part(SC_ScrollBarSubLine),
                    .more = part(SC_ScrollBarAddLine),
                    .before = before,
                    .after = after,
                    .thumb = hasRoom ? part(SC_ScrollBarSlider).place : QRect(),
                    .orientation = bar.orientation,
                    .enabled = (bar.state & State_Enabled) != 0},
                   m_scrollBars);
}

void ToolkitStyle::drawPickBar(const QStyleOptionSlider& bar, QPainter& painter) const
{
    // A bar without room for a handle picks a value by its arrows.
    const int half = bar.rect.height() / 2;
    const bool lit = (bar.state & State_HasFocus) != 0;
    const auto plate = [&](SubControl which, int top) {
        const bool active = (bar.activeSubControls & which) != 0;
        return std::pair(ScrollBarLook::Part{{bar.rect.left(), top, bar.rect.width(), half},
                                             active && (bar.state & State_Sunken) != 0},
                         active || lit);
    };
    const auto [less, lessLit] = plate(SC_ScrollBarSubLine, bar.rect.top());
    const auto [more, moreLit] = plate(SC_ScrollBarAddLine, bar.rect.bottom() + 1 - half);
    paintScrollBar(painter,
                   {.less = less,
                    .more = more,
                    .before = {},
                    .after = {},
                    .thumb = {},
                    .orientation = bar.orientation,
                    .enabled = (bar.state & State_Enabled) != 0},
                   m_scrollBars);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    for (const auto& [part, isLit] : {std::pair(less, lessLit), std::pair(more, moreLit)}) {
        painter.setPen(bar.palette.color(isLit ? QPalette::Link : QPalette::Dark));
        painter.drawRect(part.place.adjusted(0, 0, -1, -1));
    }
    painter.restore();
}

void ToolkitStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (element == CE_FocusFrame)
        drawFocusLine(*painter, option->rect, option->palette);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

int ToolkitStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    if (metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin)
        return 0; // the line lies on the control's own edge
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int ToolkitStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    if (hint == SH_FocusFrame_AboveWidget)
        return 1;
    if (hint == SH_FocusFrame_Mask) {
        if (auto* const mask = qstyleoption_cast<QStyleHintReturnMask*>(returned))
            mask->region = QRegion(option->rect) - QRegion(option->rect.adjusted(1, 1, -1, -1));
        return 1;
    }
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon ToolkitStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const
{
    const auto sign = [widget](QChar character) {
        const QPalette colors = widget != nullptr ? widget->palette() : QApplication::palette();
        return QIcon(messageSign(character, colors.color(QPalette::WindowText),
                                 widget != nullptr ? widget->devicePixelRatioF() : qApp->devicePixelRatio()));
    };
    switch (which) {
    case SP_MessageBoxQuestion:
        return sign(u'?');
    case SP_MessageBoxInformation:
        return sign(u'i');
    case SP_MessageBoxWarning:
        return sign(u'!');
    case SP_MessageBoxCritical:
        return sign(u'\u00D7');
    default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
}

} // namespace varnhold
