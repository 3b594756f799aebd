#pragma once

#include "platform/database/DatabaseWatch.h"

namespace varnhold {

/// Keeps the windows on the screen painted while a routine works and runs no events: what was uncovered, and
/// what changed since, shows within a moment.
class WindowPainter : public DatabaseWatch
{
public:
    void keepPainted() noexcept override;
};

} // namespace varnhold
