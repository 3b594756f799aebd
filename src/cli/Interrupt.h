#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace varnhold::cli {

/// Hears Ctrl-C while it lives, so that work can end in order and leave nothing half behind. One at a time.
class Interrupt
{
public:
    /// `caught` runs from the event loop.
    explicit Interrupt(std::function<void()> caught);
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    [[nodiscard]] bool isCaught() const;
    /// Ends the program by the signal, as whoever waits for it expects; nothing when none came.
    void passOn() const;

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace varnhold::cli
