#include "platform/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace varnhold {

void QtClipboard::setText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace varnhold
