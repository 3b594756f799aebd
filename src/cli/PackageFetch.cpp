#include "cli/PackageFetch.h"

#include "cli/Session.h"
#include "cli/TitleLookup.h"
#include "download/DiskFiles.h"
#include "download/DownloadClient.h"
#include "platform/Clock.h"
#include "platform/MessagePump.h"
#include "platform/RunTimeError.h"
#include "platform/TcpSocket.h"

#include <QFileInfo>
#include <QPointer>

#include <array>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

/// Makes the client's socket and looks over its shoulder: the client keeps silent about an answer that is no
/// file, and closes.
class WatchedSockets : public SocketMaker
{
public:
    Socket* makeSocket(QObject* owner) override
    {
        m_socket = m_maker.makeSocket(owner);
        // Connected before the client is, and so asked before the chunk is taken.
        QObject::connect(m_socket, &Socket::dataArrival, m_socket, [this] { noteStatus(); });
        return m_socket;
    }

    [[nodiscard]] bool isClosed() const { return m_socket->state() == Socket::State::Closed; }
    [[nodiscard]] const QString& lastStatus() const { return m_lastStatus; } ///< "404 Not Found"

private:
    void noteStatus()
    {
        std::array<char, 128> start{};
        const QByteArray seen(start.data(), m_socket->peekData(start));
        const QByteArray line = seen.first(std::max<qsizetype>(seen.indexOf("\r\n"), 0));
        if (line.startsWith("HTTP/") && line.contains(' '))
            m_lastStatus = QString::fromLatin1(line.sliced(line.indexOf(' ') + 1));
    }

    TcpSocketMaker m_maker;
    Socket* m_socket = nullptr;
    QString m_lastStatus;
};

QString progressOf(const Package& package, const DownloadLabels& labels)
{
    const auto withoutBytes = [](const QString& text) { return text.section(u" ("_s, 0, 0); };
    if (labels.done.isEmpty())
        return package.version + u"  connecting ..."_s;
    const QString line = u"%1  %2  %3 of %4"_s.arg(package.version, labels.done, withoutBytes(labels.loaded),
                                                   withoutBytes(labels.fileSize));
    // The first half second has no speed.
    return labels.speed.startsWith(u"0 ") ? line : line + u"  "_s + labels.speed;
}

} // namespace

std::optional<QString> fetchPackage(Session& session, const Package& package, const QString& target)
{
    WatchedSockets sockets;
    DiskFiles files;
    MonotonicClock clock;
    EventLoopPump pump;
    Terminal& terminal = session.terminal();
    TerminalBoxes& boxes = session.boxes();

    // What an earlier run left is not taken up again: it would only spoil the new file.
    const QString temporary = QString(target).replace(u".pkg"_s, u".temp"_s);
    if (files.exists(temporary))
        files.remove(temporary);

    DownloadClient client({sockets, files, clock, pump, boxes});
    bool ended = false;
    QObject::connect(&client, &DownloadClient::unloadRequested, &client, [&] { ended = true; });
    QObject::connect(&client, &DownloadClient::labelsChanged, &client, [&] {
        if (!ended && client.labels().cancelEnabled)
            terminal.showProgress(progressOf(package, client.labels()));
    });
    const QFileInfo info(target);
    client.setName(info.fileName());
    client.setNameTag(target);
    client.setNameToolTip(info.fileName());
    client.setUrl(package.url);
    client.setPath(info.path());

    const int failuresBefore = boxes.failures();
    client.Download1();
    while (!ended && boxes.failures() == failuresBefore && !sockets.isClosed())
        pump.pumpNext();
    terminal.clearProgress();

    const bool told = boxes.failures() > failuresBefore;
    if (ended && !told)
        return std::nullopt;
    // The client would wait here for its user to close the window.
    if (!ended)
        client.cmdCancel_Click();
    if (told)
        return QString();
    return u"%1: the server answered \"%2\"."_s.arg(package.url, sockets.lastStatus());
}

} // namespace varnhold::cli
