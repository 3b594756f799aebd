#include "support/WarningTrap.h"

#include <gtest/gtest.h>

#include <QMutex>
#include <QStringList>

#include <cstdio>
#include <utility>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QMutex trapMutex;
QStringList unexpected;

void onMessage(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtWarningMsg && type != QtCriticalMsg)
        return;
    // What the platform without a screen leaves out is no fault of the program's.
    if (message.startsWith("This plugin does not support"_L1))
        return;
    const QMutexLocker lock(&trapMutex);
    unexpected.append(message);
}

class Listener : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override
    {
        const QMutexLocker lock(&trapMutex);
        unexpected.clear();
    }

    void OnTestEnd(const testing::TestInfo&) override
    {
        QStringList came;
        {
            const QMutexLocker lock(&trapMutex);
            came = std::exchange(unexpected, {});
        }
        for (const QString& message : came)
            ADD_FAILURE() << "unexpected warning: " << qPrintable(message);
    }
};

} // namespace

void installWarningTrap()
{
    qInstallMessageHandler(onMessage);
    // Ends are told in reverse order, so a failure added here still counts for the test that ends.
    testing::UnitTest::GetInstance()->listeners().Append(new Listener);
}

} // namespace varnhold::test
