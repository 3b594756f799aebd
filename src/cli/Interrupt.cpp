#include "cli/Interrupt.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace varnhold::cli {

namespace {

// All that a signal handler may touch.
volatile std::sig_atomic_t isPending = 0;
int wake[2] = {-1, -1};

void onSignal(int /*number*/)
{
    isPending = 1;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(wake[1], &byte, 1); // full: it wakes anyway
}

} // namespace

Interrupt::Interrupt(std::function<void()> caught)
{
    isPending = 0;
    if (::pipe2(wake, O_CLOEXEC | O_NONBLOCK) == 0) {
        m_notifier = std::make_unique<QSocketNotifier>(wake[0], QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                         [this, caught = std::move(caught)] {
                             m_notifier->setEnabled(false);
                             caught();
                         });
        std::signal(SIGINT, onSignal);
    }
}

Interrupt::~Interrupt()
{
    std::signal(SIGINT, SIG_DFL);
    m_notifier.reset();
    for (int& end : wake)
        if (end >= 0)
            ::close(std::exchange(end, -1));
}

bool Interrupt::isCaught() const
{
    return isPending != 0;
}

void Interrupt::passOn() const
{
    if (isPending == 0)
        return;
    std::signal(SIGINT, SIG_DFL);
    std::raise(SIGINT);
}

} // namespace varnhold::cli
