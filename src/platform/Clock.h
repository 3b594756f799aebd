#pragma once

#include <QtGlobal>

namespace varnhold {

/// The only reader of time for the program's logic.
class Clock
{
public:
    virtual ~Clock() = default;
    /// Milliseconds of a monotonic clock, modulo 2^32; differences are taken in unsigned arithmetic.
    [[nodiscard]] virtual quint32 tickCount() const = 0;
};

class MonotonicClock : public Clock
{
public:
    [[nodiscard]] quint32 tickCount() const override;
};

} // namespace varnhold
