#include "platform/ElidedLabel.h"

#include "platform/ToolTipText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

namespace varnhold {

namespace {

bool breaksLine(QChar character)
{
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::visibleText() const
{
    QString line = text();
    for (QChar& each : line) {
        if (breaksLine(each))
            each = u' ';
    }
    return fontMetrics().elidedText(line, Qt::ElideMiddle, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), option.palette,
                          isEnabled(), visibleText(), foregroundRole());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && visibleText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipText(text()), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace varnhold
