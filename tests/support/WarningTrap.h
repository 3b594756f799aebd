#pragma once

#include <QString>

namespace varnhold::test {

/// Installs the trap for the whole program: from then on a Qt warning that no test announced fails the
/// test that is running.
void installWarningTrap();

/// Announces one warning whose text contains the given piece. It is used up by the first match; one that
/// never came fails the test at its end.
void expectWarning(const QString& piece);

} // namespace varnhold::test
