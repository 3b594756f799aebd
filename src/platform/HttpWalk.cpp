#include "platform/HttpWalk.h"

#include "platform/NavigationCodes.h"
#include "platform/ReadFile.h"

#include <QCryptographicHash>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslSocket>

#include <algorithm>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

// Bounds what waits in the socket while the program is busy elsewhere.
constexpr qint64 readBuffer = qint64{4} * 1024 * 1024;
constexpr qint64 largestCertificates =
    qint64{16} * 1024 * 1024; // all authorities of a system are half of one

bool isFetchable(const QUrl& url)
{
    return url.scheme() == u"http"_s || url.scheme() == u"https"_s;
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
        return navigation::hostNotFound;
    case QAbstractSocket::SocketTimeoutError:
        return navigation::timedOut;
    case QAbstractSocket::SslHandshakeFailedError:
    case QAbstractSocket::SslInternalError:
    case QAbstractSocket::SslInvalidUserDataError:
        return navigation::securityProblem;
    default:
        return connected ? navigation::downloadFailed : navigation::cannotConnect;
    }
}

QByteArray digestOf(const QSslCertificate& certificate)
{
    return certificate.digest(QCryptographicHash::Sha256).toHex();
}

/// What an acceptance holds for: this host, its certificate, and exactly these errors.
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
        tls.addCaCertificates(QSslCertificate::fromData(
            tryReadFile(policy.certificateFile, largestCertificates).bytes, QSsl::Pem));
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

} // namespace

QString authorityOf(const QUrl& url)
{
    return url.port() < 0 ? url.host() : url.host() + u':' + QString::number(url.port());
}

HttpWalk::HttpWalk(TlsPolicy policy, QObject* parent) : QObject(parent), m_policy(std::move(policy))
{
    m_silence.setSingleShot(true);
    connect(&m_silence, &QTimer::timeout, this, [this] { fail(navigation::timedOut); });
}

HttpWalk::~HttpWalk()
{
    stop();
}

void HttpWalk::later(std::function<void()> action)
{
    QMetaObject::invokeMethod(
        this,
        [this, walk = m_walk, action = std::move(action)] {
            if (walk == m_walk)
                action();
        },
        Qt::QueuedConnection);
}

void HttpWalk::start(const QString& url, const HttpWalkLimits& limits)
{
    stop();
    m_limits = limits;
    m_redirects = 0;
    const QUrl target(url.trimmed());
    if (target.isValid() && !target.scheme().isEmpty() && !isFetchable(target))
        later([this] { fail(navigation::unknownProtocol); });
    else if (!target.isValid() || target.host().isEmpty())
        later([this] { fail(navigation::invalidUrl); });
    else
        hop(target);
}

void HttpWalk::stop()
{
    ++m_walk;
    dropSocket();
    m_problems.clear();
}

void HttpWalk::acceptCertificate()
{
    m_accepted.insert(m_problemsKey);
    hop(m_url);
}

void HttpWalk::dropSocket()
{
    m_silence.stop();
    if (m_socket == nullptr)
        return;
    QTcpSocket* socket = std::exchange(m_socket, nullptr);
    disconnect(socket, nullptr, this, nullptr);
    socket->abort();
    socket->deleteLater(); // it may be the one whose signal runs
}

void HttpWalk::hop(const QUrl& url)
{
    dropSocket();
    m_url = url;
    m_response = HttpResponseReader(m_limits.largestBody);
    m_problems.clear();
    m_headTold = false;
    m_connected = false;
    later([this] { Q_EMIT connecting(authorityOf(m_url)); });
    m_silence.start(m_limits.silence);
    if (url.scheme() == u"https"_s) {
        connectSecurely();
    } else {
        m_socket = new QTcpSocket(this);
        connect(m_socket, &QTcpSocket::connected, this, &HttpWalk::sendRequest);
    }
    connect(m_socket, &QTcpSocket::connected, this, [this] { m_connected = true; });
    m_socket->setReadBufferSize(readBuffer);
    connect(m_socket, &QTcpSocket::readyRead, this, &HttpWalk::onData);
    connect(m_socket, &QTcpSocket::errorOccurred, this, &HttpWalk::onSocketError);
    if (auto* secure = qobject_cast<QSslSocket*>(m_socket))
        secure->connectToHostEncrypted(url.host(), static_cast<quint16>(url.port(443)));
    else
        m_socket->connectToHost(url.host(), static_cast<quint16>(url.port(80)));
}

void HttpWalk::connectSecurely()
{
    auto* secure = new QSslSocket(this);
    m_socket = secure;
    secure->setSslConfiguration(tlsOf(m_policy ? m_policy(authorityOf(m_url)) : HostTls{}));
    connect(secure, &QSslSocket::encrypted, this, &HttpWalk::sendRequest);
    connect(secure, &QSslSocket::sslErrors, this, &HttpWalk::onSslErrors);
}

void HttpWalk::sendRequest()
{
    m_silence.start();
    QByteArray target = m_url.path(QUrl::FullyEncoded).toLatin1();
    if (target.isEmpty())
        target = "/";
    if (m_url.hasQuery())
        target += '?' + m_url.query(QUrl::FullyEncoded).toLatin1();
    const QByteArray host = m_url.adjusted(QUrl::RemoveUserInfo).authority(QUrl::FullyEncoded).toLatin1();
    // What comes unpacked cannot unpack into more than the limit.
    m_socket->write("GET " + target + " HTTP/1.1\r\nHost: " + host +
                    "\r\nUser-Agent: Varnhold/" VARNHOLD_VERSION
                    "\r\nAccept: */*\r\nAccept-Encoding: identity\r\nConnection: close\r\n\r\n");
}

void HttpWalk::onData()
{
    using State = HttpResponseReader::State;
    m_silence.start();
    m_response.feed(m_socket->readAll());
    if (m_response.state() == State::Head)
        return;
    const bool leadsOn = isRedirect(m_response.status()) && !m_response.header("Location").isNull();
    const quint64 walk = m_walk;
    if (m_response.state() != State::Broken && !leadsOn) {
        if (!std::exchange(m_headTold, true))
            Q_EMIT headCame();
        const QByteArray piece = walk == m_walk ? m_response.takeBody() : QByteArray();
        if (!piece.isEmpty())
            Q_EMIT bodyCame(piece);
    }
    if (walk == m_walk)
        onAnswer();
}

void HttpWalk::onSocketError(QAbstractSocket::SocketError error)
{
    if (error == QAbstractSocket::RemoteHostClosedError && m_socket->bytesAvailable() > 0) {
        const QTcpSocket* socket = m_socket;
        onData();
        if (m_socket != socket)
            return; // that was the answer
    }
    if (!m_problems.isEmpty()) {
        dropSocket();
        // Out of the socket's own signal: whoever hears of it may ask, and wait for long.
        later([this] { tellProblems(); });
    } else if (error == QAbstractSocket::RemoteHostClosedError && m_connected) {
        m_response.finish();
        onAnswer();
    } else {
        fail(codeOf(error, m_connected));
    }
}

void HttpWalk::onSslErrors(const QList<QSslError>& problems)
{
    auto* secure = qobject_cast<QSslSocket*>(m_socket);
    m_problemsKey = keyOf(authorityOf(m_url), secure->peerCertificate(), problems);
    if (m_accepted.contains(m_problemsKey))
        secure->ignoreSslErrors(problems);
    else
        m_problems = problems;
}

/// Acts on the answer as far as it is here.
void HttpWalk::onAnswer()
{
    using State = HttpResponseReader::State;
    const QByteArray location = m_response.header("Location");
    if (m_response.state() == State::Broken) {
        fail(navigation::downloadFailed);
    } else if (isRedirect(m_response.status()) && !location.isNull()) {
        redirect(location);
    } else if (m_response.state() == State::Complete) {
        dropSocket();
        Q_EMIT completed();
    }
}

void HttpWalk::redirect(const QByteArray& location)
{
    const QUrl target = m_url.resolved(QUrl::fromEncoded(location));
    if (++m_redirects > m_limits.mostRedirects || !target.isValid() || !isFetchable(target) ||
        target.host().isEmpty())
        fail(navigation::redirectFailed);
    else
        hop(target);
}

void HttpWalk::tellProblems()
{
    QStringList sentences;
    for (const QSslError& problem : std::as_const(m_problems))
        sentences.append(problem.errorString());
    sentences.removeDuplicates();
    Q_EMIT certificateRefused(authorityOf(m_url), sentences);
}

void HttpWalk::fail(int code)
{
    stop();
    Q_EMIT failed(code);
}

} // namespace varnhold
