#include "platform/Clock.h"

#include <chrono>

namespace varnhold {

quint32 MonotonicClock::tickCount() const
{
    using namespace std::chrono;
    const auto now = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    return static_cast<quint32>(now);
}

} // namespace varnhold
