#pragma once

#include <QTextObjectInterface>

namespace varnhold {

/// An object in a text that takes no room and shows nothing. Without one to say so the layout gives an
/// unknown object a width of -1.
class EmptyObject : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    using QObject::QObject;
    QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat&) override { return {0, 0}; }
    void drawObject(QPainter*, const QRectF&, QTextDocument*, int, const QTextFormat&) override {}
};

} // namespace varnhold
