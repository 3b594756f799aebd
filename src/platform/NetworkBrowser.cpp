#include "platform/NetworkBrowser.h"

#include "platform/XmlTreeText.h"

#include <QCryptographicHash>
#include <QPointer>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslSocket>

#include <algorithm>
#include <limits>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

namespace codes {
constexpr int invalidUrl = -2146697214;
constexpr int cannotConnect = -2146697212;
constexpr int hostNotFound = -2146697211;
constexpr int downloadFailed = -2146697208;
constexpr int timedOut = -2146697205;
constexpr int unknownProtocol = -2146697203;
constexpr int securityProblem = -2146697202;
constexpr int redirectFailed = -2146697196;
constexpr int notFound = 404;
} // namespace codes

// Bounds what waits in the socket while the program is busy elsewhere.
constexpr qint64 readBuffer = qint64{4} * 1024 * 1024;

bool isFetchable(const QUrl& url)
{
    return url.scheme() == u"http"_s || url.scheme() == u"https"_s;
}

QString authorityOf(const QUrl& url)
{
    return url.port() < 0 ? url.host() : url.host() + u':' + QString::number(url.port());
}

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

/// `connected`: the peer had taken the connection before it failed.
int codeOf(QAbstractSocket::SocketError error, bool connected)
{
    switch (error) {
    case QAbstractSocket::HostNotFoundError:
        return codes::hostNotFound;
    case QAbstractSocket::SocketTimeoutError:
        return codes::timedOut;
    case QAbstractSocket::SslHandshakeFailedError:
    case QAbstractSocket::SslInternalError:
    case QAbstractSocket::SslInvalidUserDataError:
        return codes::securityProblem;
    default:
        return connected ? codes::downloadFailed : codes::cannotConnect;
    }
}

QByteArray digestOf(const QSslCertificate& certificate)
{
    return certificate.digest(QCryptographicHash::Sha256).toHex();
}

/// What a Yes holds for: this host, its certificate, and exactly these errors.
QByteArray keyOf(const QString& authority, const QSslCertificate& peer, const QList<QSslError>& problems)
{
    QList<QByteArray> parts;
    for (const QSslError& problem : problems)
        parts.append(QByteArray::number(problem.error()) + ':' + digestOf(problem.certificate()));
    std::sort(parts.begin(), parts.end());
    return authority.toUtf8() + ' ' + digestOf(peer) + ' ' + parts.join(' ');
}

QSslConfiguration tlsOf(const HostTls& policy)
{
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    if (!policy.certificateFile.isEmpty())
        tls.addCaCertificates(policy.certificateFile, QSsl::Pem);
    if (policy.allowsOldTls) {
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        tls.setProtocol(QSsl::TlsV1_0OrLater);
        QT_WARNING_POP
        // Without it the library refuses old versions and small keys before any question.
        tls.setBackendConfigurationOption("CipherString", QByteArrayLiteral("DEFAULT@SECLEVEL=0"));
    }
    return tls;
}

int bounded(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, 0, std::numeric_limits<int>::max()));
}

} // namespace

NetworkBrowser::NetworkBrowser(SecurityAlert& alert, std::function<HostTls(const QString&)> policy,
                               QObject* parent, const BrowserLimits& limits)
    : BrowserControl(parent),
      m_alert(alert),
      m_policy(std::move(policy)),
      m_limits(limits),
      m_response(limits.largestDocument)
{
    m_silence.setSingleShot(true);
    connect(&m_silence, &QTimer::timeout, this, [this] { fail(codes::timedOut); });
}

NetworkBrowser::~NetworkBrowser()
{
    stop();
}

void NetworkBrowser::later(std::function<void()> action)
{
    QMetaObject::invokeMethod(
        this,
        [this, page = m_page, action = std::move(action)] {
            if (page == m_page)
                action();
        },
        Qt::QueuedConnection);
}

void NetworkBrowser::stop()
{
    ++m_page;
    dropSocket();
    m_problems.clear();
    if (std::exchange(m_asking, false))
        m_alert.cancel();
}

void NetworkBrowser::dropSocket()
{
    m_silence.stop();
    if (m_socket == nullptr)
        return;
    QTcpSocket* socket = std::exchange(m_socket, nullptr);
    disconnect(socket, nullptr, this, nullptr);
    socket->abort();
    socket->deleteLater(); // it may be the one whose signal runs
}

void NetworkBrowser::navigate(const QString& url)
{
    stop();
    m_busy = true;
    m_text.reset();
    m_redirects = 0;
    const QString address = url.trimmed();
    const QUrl target(address);
    if (address.compare(u"about:blank"_s, Qt::CaseInsensitive) == 0)
        later([this] { show(u""_s); });
    else if (target.isValid() && !target.scheme().isEmpty() && !isFetchable(target))
        later([this] { fail(codes::unknownProtocol); });
    else if (!target.isValid() || target.host().isEmpty())
        later([this] { fail(codes::invalidUrl); });
    else
        fetch(target);
}

void NetworkBrowser::fetch(const QUrl& url)
{
    dropSocket();
    m_url = url;
    m_response = HttpResponseReader(m_limits.largestDocument);
    m_problems.clear();
    m_told = false;
    m_connected = false;
    later([this] { Q_EMIT statusTextChanged(u"Connecting to "_s + authorityOf(m_url) + u"..."_s); });
    m_silence.start(m_limits.silence);
    if (url.scheme() == u"https"_s) {
        connectSecurely();
    } else {
        m_socket = new QTcpSocket(this);
        connect(m_socket, &QTcpSocket::connected, this, &NetworkBrowser::sendRequest);
    }
    connect(m_socket, &QTcpSocket::connected, this, [this] { m_connected = true; });
    m_socket->setReadBufferSize(readBuffer);
    connect(m_socket, &QTcpSocket::readyRead, this, &NetworkBrowser::onData);
    connect(m_socket, &QTcpSocket::errorOccurred, this, &NetworkBrowser::onSocketError);
    if (auto* secure = qobject_cast<QSslSocket*>(m_socket))
        secure->connectToHostEncrypted(url.host(), static_cast<quint16>(url.port(443)));
    else
        m_socket->connectToHost(url.host(), static_cast<quint16>(url.port(80)));
}

void NetworkBrowser::connectSecurely()
{
    auto* secure = new QSslSocket(this);
    m_socket = secure;
    secure->setSslConfiguration(tlsOf(m_policy ? m_policy(authorityOf(m_url)) : HostTls{}));
    connect(secure, &QSslSocket::encrypted, this, &NetworkBrowser::sendRequest);
    connect(secure, &QSslSocket::sslErrors, this, &NetworkBrowser::onSslErrors);
}

void NetworkBrowser::sendRequest()
{
    m_silence.start();
    QByteArray target = m_url.path(QUrl::FullyEncoded).toLatin1();
    if (target.isEmpty())
        target = "/";
    if (m_url.hasQuery())
        target += '?' + m_url.query(QUrl::FullyEncoded).toLatin1();
    // What comes unpacked cannot unpack into more than the limit.
    m_socket->write("GET " + target + " HTTP/1.1\r\nHost: " + m_url.authority(QUrl::FullyEncoded).toLatin1() +
                    "\r\nUser-Agent: Varnhold/" VARNHOLD_VERSION
                    "\r\nAccept: */*\r\nAccept-Encoding: identity\r\nConnection: close\r\n\r\n");
}

void NetworkBrowser::onData()
{
    m_silence.start();
    m_response.feed(m_socket->readAll());
    if (m_response.state() == HttpResponseReader::State::Head)
        return;
    const int status = m_response.status();
    const quint64 page = m_page;
    if (m_response.state() != HttpResponseReader::State::Broken && !isRedirect(status) &&
        status != codes::notFound) {
        if (!std::exchange(m_told, true))
            Q_EMIT statusTextChanged(u"Downloading "_s + m_url.toString() + u"..."_s);
        if (page == m_page)
            Q_EMIT progressChanged(bounded(m_response.bodyReceived()), bounded(m_response.bodyLength()));
    }
    if (page == m_page)
        onAnswer();
}

void NetworkBrowser::onSocketError(QAbstractSocket::SocketError error)
{
    if (error == QAbstractSocket::RemoteHostClosedError && m_socket->bytesAvailable() > 0) {
        const QTcpSocket* socket = m_socket;
        onData();
        if (m_socket != socket)
            return; // that was the answer
    }
    if (!m_problems.isEmpty()) {
        dropSocket();
        // Out of the socket's own signal: the question may stay open for long.
        later([this] { ask(); });
    } else if (error == QAbstractSocket::RemoteHostClosedError && m_connected) {
        m_response.finish();
        onAnswer();
    } else {
        fail(codeOf(error, m_connected));
    }
}

void NetworkBrowser::onSslErrors(const QList<QSslError>& problems)
{
    auto* secure = qobject_cast<QSslSocket*>(m_socket);
    m_problemsKey = keyOf(authorityOf(m_url), secure->peerCertificate(), problems);
    if (m_accepted.contains(m_problemsKey))
        secure->ignoreSslErrors(problems);
    else
        m_problems = problems;
}

/// Acts on the answer as far as it is here.
void NetworkBrowser::onAnswer()
{
    using State = HttpResponseReader::State;
    const int status = m_response.status();
    const QByteArray location = m_response.header("Location");
    if (m_response.state() == State::Broken) {
        fail(codes::downloadFailed);
    } else if (isRedirect(status) && !location.isNull()) {
        redirect(location);
    } else if (status == codes::notFound) {
        fail(codes::notFound);
    } else if (m_response.state() == State::Complete) {
        dropSocket();
        show(xmlTreeText(m_response.takeBody()).value_or(u"The XML page cannot be displayed"_s));
    }
}

void NetworkBrowser::redirect(const QByteArray& location)
{
    const QUrl target = m_url.resolved(QUrl::fromEncoded(location));
    if (++m_redirects > m_limits.mostRedirects || !target.isValid() || !isFetchable(target) ||
        target.host().isEmpty())
        fail(codes::redirectFailed);
    else
        fetch(target);
}

void NetworkBrowser::ask()
{
    QStringList sentences;
    for (const QSslError& problem : std::as_const(m_problems))
        sentences.append(problem.errorString());
    sentences.removeDuplicates();
    m_asking = true;
    const quint64 page = m_page;
    const QPointer<NetworkBrowser> self(this);
    const bool yes = m_alert.accept(authorityOf(m_url), sentences);
    // Anything may have happened while the question was open.
    if (self.isNull() || page != m_page)
        return;
    m_asking = false;
    if (!yes) {
        fail(codes::securityProblem);
        return;
    }
    m_accepted.insert(m_problemsKey);
    fetch(m_url);
}

void NetworkBrowser::show(const QString& text)
{
    m_text = text;
    m_busy = false;
    const quint64 page = m_page;
    Q_EMIT progressChanged(-1, 0);
    if (page == m_page)
        Q_EMIT statusTextChanged(u"Done"_s);
}

void NetworkBrowser::fail(int code)
{
    stop();
    m_busy = false;
    const quint64 page = m_page;
    Q_EMIT progressChanged(0, 0); // a page that fails half-way leaves no bar behind
    if (page == m_page)
        Q_EMIT navigateError(code);
}

} // namespace varnhold
