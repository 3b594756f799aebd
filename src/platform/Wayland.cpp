#include "platform/Wayland.h"

#include <QGuiApplication>

namespace varnhold {

using namespace Qt::StringLiterals;

bool onWayland()
{
    return QGuiApplication::platformName().startsWith("wayland"_L1);
}

} // namespace varnhold
