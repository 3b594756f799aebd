#pragma once

#include "cli/PackageFiles.h"
#include "download/DownloadClient.h"
#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "platform/TcpSocket.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <memory>

namespace varnhold {
class Clock;
}

namespace varnhold::cli {

class WatchedSockets;

/// What is wrong with a package's address, to go on after it: "does not end in the name of a .pkg file".
/// Empty for one that can be asked for and whose name a file can have.
QString addressFault(const QString& url);
/// The last part of the address.
QString packageFileName(const QString& url);
/// One line for a terminal; `name` is how the package is called there.
QString progressLine(const QString& name, const DownloadLabels& labels);

/// The threads of all fetches: those that move bytes, and one that works out sums.
struct FetchThreads
{
    TcpSocketMaker sockets;
    std::shared_ptr<Workers> sums = std::make_shared<Workers>(1);
};

/// One package on its way from its address to its target; several may run on one event loop. Nothing is asked
/// and nothing is printed. Not to be deleted from inside one of its signals.
class PackageFetch : public QObject
{
    Q_OBJECT

public:
    /// `patience`: how long the peer may send nothing.
    PackageFetch(const QString& url, const PackageTarget& target, std::chrono::seconds patience,
                 FetchThreads& threads, QObject* parent = nullptr);
    ~PackageFetch() override;

    /// Takes the target's place on the disk and asks the host. ended() comes from the event loop, or at once
    /// when the disk refuses.
    void start();
    /// Ends it; nothing is left behind.
    void giveUp(const QString& problem);
    [[nodiscard]] bool isEnded() const { return m_ended; }
    /// Whether the package stands at its target, of the document's size.
    [[nodiscard]] bool hasArrived() const { return m_files.hasArrived(); }
    /// Of the package that has arrived, once, when they were wanted and could be worked out while it came.
    std::optional<PackageSums> takeSums() { return m_files.takeSums(); }
    /// A sentence, when it has ended without having arrived.
    [[nodiscard]] const QString& problem() const { return m_files.problem(); }
    [[nodiscard]] const DownloadLabels& labels() const { return m_client->labels(); }

Q_SIGNALS:
    void progress();
    /// Once.
    void ended();

private:
    /// What the download would tell its user, as a sentence for the one problem.
    class Boxes : public MessageBoxes
    {
    public:
        explicit Boxes(PackageFetch& owner) : m_owner(owner) {}
        BoxAnswer show(const MessageBox& box) override;

    private:
        PackageFetch& m_owner;
    };
    /// No wait of the window's is waited for.
    class NoWait : public MessagePump
    {
    public:
        bool pump() override { return false; }
        bool pumpNext() override { return false; }
    };

    void look();
    void end();

    QString m_url;
    PackageTarget m_target;
    std::chrono::milliseconds m_patience;
    PackageFiles m_files;
    Boxes m_boxes;
    NoWait m_pump;
    std::unique_ptr<WatchedSockets> m_sockets;
    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<DownloadClient> m_client;
    QTimer m_watch;
    QElapsedTimer m_silence;
    qint64 m_seen = -1; ///< what had come when the silence began
    bool m_ended = false;
};

} // namespace varnhold::cli
