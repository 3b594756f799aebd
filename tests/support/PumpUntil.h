#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace varnhold::test {

/// Runs the event loop until the condition holds; fails the test after ten seconds.
template <typename Condition> bool pumpUntil(Condition&& condition)
{
    const QDeadlineTimer deadline(10000);
    while (!condition()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        if (deadline.hasExpired()) {
            ADD_FAILURE() << "what was waited for never happened";
            return false;
        }
    }
    return true;
}

} // namespace varnhold::test
