#include "download/Fetch.h"

#include "download/DiskFiles.h"
#include "download/DownloadClient.h"
#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "platform/TcpSocket.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace varnhold::bench {

namespace {

/// Ends waits at once: the pause before a window closes is a plain spin and no part of the transfer.
class NoPump : public MessagePump
{
public:
    bool pump() override { return false; }
    bool pumpNext() override { return false; }
};

/// A box means that the download went wrong.
class FailingBoxes : public MessageBoxes
{
public:
    BoxAnswer show(const MessageBox& box) override
    {
        std::fprintf(stderr, "%s\n", qPrintable(box.text));
        QCoreApplication::exit(1);
        return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
    }
};

/// Notes how long each event keeps the event loop's thread: socket events, ends of orders, timers.
class TimedApplication : public QCoreApplication
{
public:
    using QCoreApplication::QCoreApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (m_depth > 0)
            return QCoreApplication::notify(receiver, event);
        ++m_depth;
        QElapsedTimer time;
        time.start();
        const bool handled = QCoreApplication::notify(receiver, event);
        steps.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
        --m_depth;
        return handled;
    }

    std::vector<double> steps; ///< ms

private:
    int m_depth = 0;
};

double percentile99(std::vector<double>& values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() * 99 / 100];
}

} // namespace

int fetch(int argc, char** argv)
{
    TimedApplication application(argc, argv);
    TcpSocketMaker sockets;
    DiskFiles files;
    MonotonicClock clock;
    NoPump pump;
    FailingBoxes boxes;

    std::vector<std::unique_ptr<DownloadClient>> clients;
    std::size_t running = 0;
    for (int i = 3; i + 1 < argc; i += 2) {
        clients.push_back(
            std::make_unique<DownloadClient>(DownloadClient::Services{sockets, files, clock, pump, boxes}));
        DownloadClient& client = *clients.back();
        client.setUrl(QString::fromLocal8Bit(argv[i]));
        client.setNameTag(QString::fromLocal8Bit(argv[i + 1]));
        QObject::connect(&client, &DownloadClient::unloadRequested, &application, [&running] {
            if (--running == 0)
                QCoreApplication::exit(0);
        });
        ++running;
        client.Download1();
    }
    if (running == 0)
        return 0;

    std::vector<double> intervals;
    QElapsedTimer since;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &application, [&] {
        intervals.push_back(static_cast<double>(since.nsecsElapsed()) / 1e6), since.start();
    });
    timer.start(10);
    since.start();
    const int code = QCoreApplication::exec();
    if (std::FILE* result = std::fopen(argv[2], "w")) {
        std::fprintf(result, "%f %f\n", percentile99(intervals), percentile99(application.steps));
        std::fclose(result);
    }
    return code;
}

} // namespace varnhold::bench
