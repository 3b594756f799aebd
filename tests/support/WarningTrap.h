#pragma once

namespace varnhold::test {

/// Installs the trap for the whole program: from then on a Qt warning fails the test that is
/// running.
void installWarningTrap();

} // namespace varnhold::test
