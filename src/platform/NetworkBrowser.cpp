#include "platform/NetworkBrowser.h"

#include "platform/XmlTreeText.h"

#include <QCryptographicHash>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <algorithm>
#include <limits>

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

/// True when the peer answered, whatever its status says; false when the connection failed.
bool isAnswer(QNetworkReply::NetworkError error)
{
    return error == QNetworkReply::NoError ||
           (error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError) ||
           (error >= QNetworkReply::InternalServerError && error <= QNetworkReply::UnknownServerError);
}

int codeOf(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
        return codes::cannotConnect;
    case QNetworkReply::HostNotFoundError:
        return codes::hostNotFound;
    case QNetworkReply::TimeoutError:
    // Our own aborts are never heard of: this one is the manager's, after too long a silence.
    case QNetworkReply::OperationCanceledError:
        return codes::timedOut;
    case QNetworkReply::SslHandshakeFailedError:
        return codes::securityProblem;
    case QNetworkReply::ProtocolUnknownError:
        return codes::unknownProtocol;
    default:
        return codes::downloadFailed;
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
    : BrowserControl(parent), m_alert(alert), m_policy(std::move(policy)), m_limits(limits)
{
}

NetworkBrowser::~NetworkBrowser()
{
    stop();
}

QNetworkAccessManager& NetworkBrowser::manager()
{
    if (m_manager == nullptr)
        m_manager = new QNetworkAccessManager(this);
    return *m_manager;
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
    if (m_reply != nullptr) {
        QNetworkReply* reply = std::exchange(m_reply, nullptr);
        disconnect(reply, nullptr, this, nullptr);
        reply->abort();
        reply->deleteLater();
    }
    m_document.clear();
    m_problems.clear();
    if (std::exchange(m_asking, false))
        m_alert.cancel();
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
        later([this] {
            manager(); // the first lookup finds it ready
            show(u""_s);
        });
    else if (target.isValid() && !target.scheme().isEmpty() && !isFetchable(target))
        later([this] { fail(codes::unknownProtocol); });
    else if (!target.isValid() || target.host().isEmpty())
        later([this] { fail(codes::invalidUrl); });
    else
        fetch(target);
}

QNetworkRequest NetworkBrowser::requestFor(const QUrl& url) const
{
    QNetworkRequest request(url);
    // Redirects are followed here, since each host has a TLS policy of its own.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    // Documents are small, and what is not packed cannot unpack into more than the limit.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setTransferTimeout(static_cast<int>(m_limits.silence.count()));
    if (url.scheme() == u"https"_s)
        request.setSslConfiguration(tlsOf(m_policy ? m_policy(authorityOf(url)) : HostTls{}));
    return request;
}

void NetworkBrowser::fetch(const QUrl& url)
{
    m_url = url;
    m_document.clear();
    m_problems.clear();
    m_reply = manager().get(requestFor(url));
    m_reply->setReadBufferSize(readBuffer);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &NetworkBrowser::onHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &NetworkBrowser::onData);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &NetworkBrowser::onProgress);
    connect(m_reply, &QNetworkReply::sslErrors, this, &NetworkBrowser::onSslErrors);
    connect(m_reply, &QNetworkReply::finished, this, &NetworkBrowser::onFinished);
    later([this] { Q_EMIT statusTextChanged(u"Connecting to "_s + authorityOf(m_url) + u"..."_s); });
}

void NetworkBrowser::onHead()
{
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (isRedirect(status))
        return;
    if (m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > m_limits.largestDocument)
        fail(codes::downloadFailed);
    else if (status != codes::notFound)
        Q_EMIT statusTextChanged(u"Downloading "_s + m_url.toString() + u"..."_s);
}

void NetworkBrowser::onData()
{
    m_document += m_reply->readAll();
    if (m_document.size() > m_limits.largestDocument)
        fail(codes::downloadFailed);
}

void NetworkBrowser::onProgress(qint64 received, qint64 total)
{
    Q_EMIT progressChanged(bounded(received), bounded(total));
}

void NetworkBrowser::onSslErrors(const QList<QSslError>& problems)
{
    const QSslCertificate peer = m_reply->sslConfiguration().peerCertificate();
    m_problemsKey = keyOf(authorityOf(m_url), peer, problems);
    if (m_accepted.contains(m_problemsKey))
        m_reply->ignoreSslErrors(problems);
    else
        m_problems = problems;
}

void NetworkBrowser::onFinished()
{
    QNetworkReply* reply = std::exchange(m_reply, nullptr);
    disconnect(reply, nullptr, this, nullptr);
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (!isAnswer(reply->error())) {
        // Out of the reply's own signal: the question may stay open for long.
        if (reply->error() == QNetworkReply::SslHandshakeFailedError && !m_problems.isEmpty())
            later([this] { ask(); });
        else
            fail(codeOf(reply->error()));
    } else if (isRedirect(status) && reply->hasRawHeader("Location")) {
        redirect(reply->url(), reply->rawHeader("Location"));
    } else if (status == codes::notFound) {
        fail(codes::notFound);
    } else {
        m_document += reply->readAll();
        const QByteArray document = std::exchange(m_document, {});
        show(xmlTreeText(document).value_or(u"The XML page cannot be displayed"_s));
    }
}

void NetworkBrowser::redirect(const QUrl& from, const QByteArray& location)
{
    const QUrl target = from.resolved(QUrl::fromEncoded(location.trimmed()));
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
