#pragma once

#include <QScopeGuard>

namespace varnhold {

/// Shows the busy pointer of a view until the guard goes, on every way out. Leave its scope before a box
/// shows.
template <typename View> [[nodiscard]] auto busyPointer(View& view)
{
    view.showBusy(true);
    return qScopeGuard([&view] { view.showBusy(false); });
}

} // namespace varnhold
