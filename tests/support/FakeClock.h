#pragma once

#include "platform/Clock.h"

namespace varnhold::test {

/// Stands still until it is moved.
class FakeClock : public Clock
{
public:
    [[nodiscard]] quint32 tickCount() const override { return now; }
    void advance(quint32 milliseconds) { now += milliseconds; }

    quint32 now = 1000;
};

} // namespace varnhold::test
