#include "cli/PackageFetch.h"

#include "cli/Terminal.h"
#include "download/SplitUrl.h"
#include "platform/Clock.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestFileName = 255; ///< bytes, on all usual file systems
constexpr int mostRedirects = 20;
constexpr std::chrono::milliseconds lookInterval{100};

QString authorityOf(const QString& url)
{
    const UrlParts parts = Split_Url(url);
    return parts.host + u':' + parts.port;
}

} // namespace

QString packageFileName(const QString& url)
{
    return url.sliced(url.lastIndexOf(u'/') + 1);
}

QString addressFault(const QString& url)
{
    if (url.startsWith(u"https:", Qt::CaseInsensitive))
        return u"begins with https, and packages come over plain http"_s;
    // A request carries a character as one byte.
    if (std::ranges::any_of(url, [](QChar character) { return character.unicode() > 0xff; }))
        return u"has characters that a request cannot carry"_s;
    const QString name = packageFileName(url);
    const bool odd = std::ranges::any_of(name, [](QChar character) { return !character.isPrint(); });
    if (odd || !name.endsWith(u".pkg"_s) || name == u".pkg"_s || name.contains(u".temp"_s))
        return u"does not end in the name of a .pkg file"_s;
    if (PackageTarget{name}.temporary().toUtf8().size() > longestFileName)
        return u"ends in a name of %1 bytes, and a package's may have %2"_s.arg(name.toUtf8().size())
            .arg(longestFileName - 1);
    return {};
}

QString progressLine(const QString& name, const DownloadLabels& labels)
{
    const auto withoutBytes = [](const QString& text) { return text.section(u" ("_s, 0, 0); };
    if (labels.done.isEmpty())
        return name + u"  connecting ..."_s;
    const QString line = u"%1  %2  %3 of %4"_s.arg(name, labels.done, withoutBytes(labels.loaded),
                                                   withoutBytes(labels.fileSize));
    // The first half second has no speed.
    return labels.speed.startsWith(u"0 ") ? line : line + u"  "_s + labels.speed;
}

/// Makes the client's socket and looks over its shoulder: the client keeps silent about an answer that is no
/// file, and closes; and it follows for ever where it is sent.
class WatchedSockets : public SocketMaker
{
public:
    WatchedSockets(SocketMaker& maker, const QString& url, std::function<void()> answered)
        : m_maker(maker), m_authority(authorityOf(url)), m_answered(std::move(answered))
    {
    }

    Socket* makeSocket(QObject* owner) override
    {
        m_socket = m_maker.makeSocket(owner);
        // Connected before the client is, and so asked before the chunk is taken.
        QObject::connect(m_socket, &Socket::dataArrival, m_socket, [this] { noteAnswer(); });
        return m_socket;
    }

    [[nodiscard]] bool isClosed() const { return m_socket->state() == Socket::State::Closed; }
    [[nodiscard]] const QString& status() const { return m_status; }       ///< "404 Not Found"
    [[nodiscard]] const QString& authority() const { return m_authority; } ///< asked last
    [[nodiscard]] int redirects() const { return m_redirects; }

private:
    void noteAnswer()
    {
        std::array<char, 4096> start{};
        const QByteArray seen(start.data(), m_socket->peekData(start));
        const QByteArray line = seen.first(std::max<qsizetype>(seen.indexOf("\r\n"), 0));
        if (!line.startsWith("HTTP/") || !line.contains(' '))
            return;
        m_status = QString::fromLatin1(line.sliced(line.indexOf(' ') + 1));
        if (m_status.startsWith(u"302"_s)) {
            ++m_redirects;
            const QByteArray mark = "\r\nlocation:";
            const qsizetype at = seen.toLower().indexOf(mark);
            const QByteArray target = at < 0 ? QByteArray() : seen.sliced(at + mark.size());
            m_authority = authorityOf(QString::fromLatin1(target.first(target.indexOf('\r')).trimmed()));
        }
        m_answered();
    }

    SocketMaker& m_maker;
    Socket* m_socket = nullptr;
    QString m_authority;
    QString m_status;
    int m_redirects = 0;
    std::function<void()> m_answered;
};

BoxAnswer PackageFetch::Boxes::show(const MessageBox& box)
{
    // A box about the socket bears its error's number; the others' texts are whole.
    const bool isSocket = box.title.startsWith(u"Error "_s);
    m_owner.m_files.note(isSocket ? u"%1: %2."_s.arg(m_owner.m_sockets->authority(), oneLine(box.text))
                                  : u"%1: %2"_s.arg(m_owner.m_url, oneLine(box.text)));
    // The client waits here for its user to close the window.
    QMetaObject::invokeMethod(
        &m_owner, [&owner = m_owner] { owner.giveUp({}); }, Qt::QueuedConnection);
    return BoxAnswer::Ok;
}

PackageFetch::PackageFetch(const QString& url, const PackageTarget& target, std::chrono::seconds patience,
                           FetchThreads& threads, QObject* parent)
    : QObject(parent),
      m_url(url),
      m_target(target),
      m_patience(patience),
      m_files(
          target, [this] { return m_client->fileSize(); }, threads.sums),
      m_boxes(*this),
      m_sockets(std::make_unique<WatchedSockets>(threads.sockets, url,
                                                 [this] {
                                                     // After the client has acted on the answer.
                                                     QMetaObject::invokeMethod(
                                                         this, [this] { look(); }, Qt::QueuedConnection);
                                                 })),
      m_clock(std::make_unique<MonotonicClock>()),
      m_client(std::make_unique<DownloadClient>(
          DownloadClient::Services{*m_sockets, m_files, *m_clock, m_pump, m_boxes}))
{
    connect(m_client.get(), &DownloadClient::unloadRequested, this, &PackageFetch::end);
    connect(m_client.get(), &DownloadClient::labelsChanged, this, [this] {
        if (!m_ended && labels().cancelEnabled)
            Q_EMIT progress();
    });
    m_watch.setInterval(lookInterval);
    connect(&m_watch, &QTimer::timeout, this, &PackageFetch::look);
}

PackageFetch::~PackageFetch()
{
    m_client->disconnect(this);
}

void PackageFetch::start()
{
    if (!m_files.claim()) {
        end();
        return;
    }
    const QFileInfo info(m_target.path);
    m_client->setName(info.fileName());
    m_client->setNameTag(m_target.path);
    m_client->setNameToolTip(info.fileName());
    m_client->setUrl(m_url);
    m_client->setPath(info.path());
    m_silence.start();
    m_watch.start();
    m_client->Download1();
}

/// What the client itself does not mind.
void PackageFetch::look()
{
    if (m_ended)
        return;
    const qint64 seen = m_client->bytesReceived() + qint64{m_sockets->redirects()};
    if (std::exchange(m_seen, seen) != seen)
        m_silence.restart();
    if (m_sockets->redirects() > mostRedirects)
        giveUp(
            u"%1: sent on from one address to the next, more than %2 times."_s.arg(m_url).arg(mostRedirects));
    else if (m_sockets->isClosed())
        giveUp(u"%1: the server answered \"%2\"."_s.arg(m_url, m_sockets->status()));
    else if (m_target.size && m_client->bytesReceived() > *m_target.size)
        giveUp(u"%1: more comes than the %2 bytes that the document says."_s.arg(m_url).arg(*m_target.size));
    else if (m_silence.hasExpired(m_patience.count()))
        giveUp(
            u"%1: nothing came for %2 s; --timeout sets how long that may take."_s.arg(m_sockets->authority())
                .arg(m_patience.count() / 1000));
}

void PackageFetch::giveUp(const QString& problem)
{
    if (m_ended)
        return;
    if (!problem.isEmpty())
        m_files.note(problem);
    m_client->cmdCancel_Click();
    end(); // unless the cancel has done so
}

void PackageFetch::end()
{
    if (std::exchange(m_ended, true))
        return;
    m_watch.stop();
    m_files.release();
    Q_EMIT ended();
}

} // namespace varnhold::cli
