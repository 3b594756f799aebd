#pragma once

#include <chrono>

namespace varnhold {

/// Watches over the engine while it works and hands out no row.
class DatabaseWatch
{
public:
    virtual ~DatabaseWatch() = default;
    /// Called some times a second from inside the engine, so it may paint and do nothing else: whatever an
    /// event could start would meet the connection in the middle of its work.
    virtual void keepPainted() noexcept = 0;
    /// How long the engine may work between two rows; then the statement fails with RunTimeError 0x80004005.
    [[nodiscard]] virtual std::chrono::milliseconds patience() const { return defaultPatience; }

    static constexpr std::chrono::milliseconds defaultPatience = std::chrono::seconds(6);
};

} // namespace varnhold
