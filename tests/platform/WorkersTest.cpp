#include "platform/Workers.h"
#include "support/PumpUntil.h"

#include <gtest/gtest.h>

#include <QThread>

#include <array>
#include <atomic>

namespace varnhold::test {
namespace {

TEST(Workers, DoWhatIsOrderedAndTellItHere)
{
    const auto workers = std::make_shared<Workers>(2);
    std::array<std::unique_ptr<WorkOrder>, 5> orders;
    std::atomic<int> atOnce = 0;
    std::atomic<int> most = 0;
    int sum = 0;
    int rounds = 0;
    const std::function<void(WorkOrder&)> begin = [&](WorkOrder& order) {
        order.start(
            [&] {
                most = std::max(most.load(), ++atOnce);
                QThread::msleep(1);
                --atOnce;
                return QThread::currentThread();
            },
            [&](QThread* worker) {
                EXPECT_NE(worker, QThread::currentThread());
                EXPECT_FALSE(order.isUnderWay());
                sum += 1;
                if (++rounds <= 20)
                    begin(order); // from inside the end of the one before
            });
    };
    for (auto& order : orders) {
        order = std::make_unique<WorkOrder>(workers);
        begin(*order);
    }
    EXPECT_EQ(sum, 0);
    pumpUntil([&] { return sum == 25; });
    EXPECT_EQ(most, 2);
}

TEST(Workers, CancelDropsWhatWaitsAndWaitsForWhatRuns)
{
    const auto workers = std::make_shared<Workers>(1);
    std::atomic<int> begun = 0;
    std::atomic<int> ended = 0;
    int told = 0;
    const auto begin = [&](WorkOrder& order) {
        order.start([&] { return ++begun, QThread::msleep(20), ++ended; }, [&](int) { ++told; });
    };
    WorkOrder first(workers);
    auto second = std::make_unique<WorkOrder>(workers);
    begin(first);
    begin(*second);
    while (begun == 0)
        QThread::yieldCurrentThread();
    second.reset();
    EXPECT_EQ(ended, 0);
    first.cancel();
    EXPECT_EQ(ended, 1);

    // One that has ended and is not told yet; the next order's end is not taken for its own.
    begin(first);
    while (ended < 2)
        QThread::yieldCurrentThread();
    first.cancel();
    begin(first);
    pumpUntil([&] { return told > 0; });
    QCoreApplication::processEvents();
    EXPECT_EQ(begun, 3);
    EXPECT_EQ(told, 1);

    // An owner may go from inside its end.
    auto last = std::make_unique<WorkOrder>(workers);
    last->start([] { return 0; }, [&](int) { last.reset(); });
    pumpUntil([&] { return last == nullptr; });
}

} // namespace
} // namespace varnhold::test
