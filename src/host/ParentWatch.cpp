#include "host/ParentWatch.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace varnhold::host {

void quitOnSignals()
{
    sigset_t signalSet;
    sigemptyset(&signalSet);
    sigaddset(&signalSet, SIGTERM);
    sigaddset(&signalSet, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signalSet, nullptr);
    const int descriptor = ::signalfd(-1, &signalSet, SFD_CLOEXEC | SFD_NONBLOCK);
    const auto* const notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
}

void quitWithStandardInput()
{
    auto* const notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [notifier] {
        std::array<char, 256> ignored{};
        if (::read(STDIN_FILENO, ignored.data(), ignored.size()) <= 0) {
            notifier->setEnabled(false);
            QCoreApplication::quit();
        }
    });
}

bool endWithParent(qint64 parentProcess)
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    return ::getppid() == parentProcess;
}

} // namespace varnhold::host
