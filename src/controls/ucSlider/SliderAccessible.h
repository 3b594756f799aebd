#pragma once

namespace varnhold {

/// From then on every ucSlider tells assistive tools its role, value, range and actions. Calls after the
/// first do nothing.
void installSliderAccessible();

} // namespace varnhold
