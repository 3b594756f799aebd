#include "platform/Workers.h"
#include "support/PumpUntil.h"

#include <gtest/gtest.h>

#include <atomic>

namespace varnhold::test {
namespace {

TEST(Workers, TellTheirEndHereAndNothingAfterACancel)
{
    const auto workers = std::make_shared<Workers>(1);
    std::atomic<int> begun = 0;
    std::atomic<int> ended = 0;
    QList<int> told;
    const QThread* const here = QThread::currentThread();
    const auto begin = [&](WorkOrder& order, int number) {
        order.start(
            [&, number] {
                ++begun;
                QThread::msleep(20);
                ++ended;
                return QThread::currentThread() == here ? -1 : number;
            },
            [&](int result) { told.append(result); });
    };
    const auto awaitEnd = [&](int count) {
        while (ended < count)
            QThread::yieldCurrentThread();
    };
    // Of two, the one that runs is waited for, and the other never begins.
    WorkOrder first(workers);
    auto second = std::make_unique<WorkOrder>(workers);
    begin(first, 1);
    begin(*second, 2);
    while (begun == 0)
        QThread::yieldCurrentThread();
    second.reset();
    EXPECT_EQ(ended, 0);
    first.cancel();
    EXPECT_EQ(ended, 1);

    // One that has ended and is not told yet; the next order's end is not taken for its own.
    begin(first, 3);
    awaitEnd(2);
    first.cancel();
    begin(first, 4);
    awaitEnd(3);
    EXPECT_TRUE(told.isEmpty());
    pumpUntil([&] { return !first.isUnderWay(); });
    QCoreApplication::processEvents();
    EXPECT_EQ(begun, 3);
    EXPECT_EQ(told, QList<int>{4});

    // An owner may go, or begin anew, from inside its end.
    auto last = std::make_unique<WorkOrder>(workers);
    last->start([] { return 0; }, [&](int) { last->start([] { return 0; }, [&](int) { last.reset(); }); });
    pumpUntil([&] { return last == nullptr; });
}

} // namespace
} // namespace varnhold::test
