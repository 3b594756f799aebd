#include "state/WaitLoop.h"

#include "platform/MessagePump.h"

#include <QtGlobal>

#include <cmath>

namespace varnhold {

void Wait_Loop(double units, MessagePump& pump)
{
    constexpr double roundsPerUnit = 160000;
    const auto rounds = static_cast<qint64>(std::nearbyint(units) * roundsPerUnit);
    for (qint64 i = 0; i < rounds && pump.pump(); ++i) {
    }
}

} // namespace varnhold
