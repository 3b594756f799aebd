#pragma once

#include <QObject>

namespace varnhold::host {

/// Asks the application to quit on SIGTERM and SIGINT.
void quitOnSignals();
/// Asks the application to quit when standard input ends.
void quitWithStandardInput();
/// Lets the kernel end this process when its parent does. False when that parent is gone already.
bool endWithParent(qint64 parentProcess);

} // namespace varnhold::host
