#pragma once

namespace varnhold {

/// From then on every XP_ProgressBar tells assistive tools its role, its percentage and its range. Calls
/// after the first do nothing.
void installProgressBarAccessible();

} // namespace varnhold
