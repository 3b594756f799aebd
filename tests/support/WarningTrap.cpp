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
QStringList expected;
QStringList unexpected;

void onMessage(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtWarningMsg && type != QtCriticalMsg)
        return;
    // The platform without a display says so whenever a tip or a menu comes up, or a window is shaped.
    if (message == QLatin1String("This plugin does not support raise()") ||
        message == QLatin1String("This plugin does not support setting window masks"))
        return;
    // What the platform without a screen leaves out is no fault of the program's.
    if (message.startsWith("This plugin does not support"_L1))
        return;
    const QMutexLocker lock(&trapMutex);
    for (qsizetype i = 0; i < expected.size(); ++i) {
        if (message.contains(expected.at(i))) {
            expected.removeAt(i);
            return;
        }
    }
    unexpected.append(message);
}

class Listener : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override
    {
        const QMutexLocker lock(&trapMutex);
        expected.clear();
        unexpected.clear();
    }

    void OnTestEnd(const testing::TestInfo&) override
    {
        QStringList came;
        QStringList missed;
        {
            const QMutexLocker lock(&trapMutex);
            came = std::exchange(unexpected, {});
            missed = std::exchange(expected, {});
        }
        for (const QString& message : came)
            ADD_FAILURE() << "unexpected warning: " << qPrintable(message);
        for (const QString& piece : missed)
            ADD_FAILURE() << "announced warning never came: " << qPrintable(piece);
    }
};

} // namespace

void installWarningTrap()
{
    qInstallMessageHandler(onMessage);
    // Ends are told in reverse order, so a failure added here still counts for the test that ends.
    testing::UnitTest::GetInstance()->listeners().Append(new Listener);
}

void expectWarning(const QString& piece)
{
    const QMutexLocker lock(&trapMutex);
    expected.append(piece);
}

} // namespace varnhold::test
