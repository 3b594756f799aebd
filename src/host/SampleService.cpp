#include "host/SampleService.h"

#include "host/Connection.h"
#include "host/Listener.h"
#include "platform/RunTimeError.h"

#include <QFile>
#include <QHostAddress>
#include <QPointer>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>

#include <fnmatch.h>
#include <sys/mman.h>
#include <unistd.h>

namespace varnhold::host {

using namespace Qt::StringLiterals;

namespace {

const QByteArray oddPrefix = "/odd/";
constexpr qsizetype requestsKept = 10000;
constexpr qsizetype requestBytesKept = 1024 * 1024;

QString authorityOf(quint16 port)
{
    return u"127.0.0.1:"_s + QString::number(port);
}

} // namespace

SampleService::SampleService(QObject* parent)
    : QObject(parent),
      m_site(this),
      m_http(std::make_unique<Listener>([this](qintptr descriptor) { serve(descriptor, Port::Http); }, this)),
      m_https(
          std::make_unique<Listener>([this](qintptr descriptor) { serve(descriptor, Port::Https); }, this)),
      m_other(
          std::make_unique<Listener>([this](qintptr descriptor) { serve(descriptor, Port::Other); }, this))
{
}

SampleService::~SampleService() = default;

void SampleService::start(quint16 httpPort, quint16 httpsPort, const QString& caFile)
{
    m_authority = makeAuthority();
    makeTls();
    writeCaFile(caFile);
    if (httpPort != 0 || !m_http->listen(QHostAddress::LocalHost, m_preferredPort))
        open(*m_http, httpPort);
    open(*m_https, httpsPort);
    open(*m_other, 0);
}

void SampleService::open(Listener& listener, quint16 port)
{
    if (!listener.listen(QHostAddress::LocalHost, port))
        throw RunTimeError(
            errors::permissionDenied,
            u"The sample service cannot listen on port %1: %2."_s.arg(port).arg(listener.errorString()));
}

/// The unnamed one lives in memory, under a name that goes with this process however that ends.
void SampleService::writeCaFile(const QString& wanted)
{
    m_caKept = std::make_unique<QFile>(wanted);
    QFile& file = *m_caKept;
    const bool opened = wanted.isEmpty() ? file.open(::memfd_create("varnhold-ca", MFD_CLOEXEC),
                                                     QIODevice::WriteOnly, QFile::AutoCloseHandle)
                                         : file.open(QIODevice::WriteOnly);
    if (!opened || file.write(m_authority.certificate) != m_authority.certificate.size() || !file.flush())
        throw RunTimeError(errors::pathFileAccess,
                           u"The sample service cannot write its certificate to \"%1\": %2."_s.arg(
                               wanted, file.errorString()));
    m_caFile = wanted.isEmpty() ? u"/proc/%1/fd/%2"_s.arg(::getpid()).arg(file.handle()) : wanted;
}

void SampleService::makeTls()
{
    const Identity identity = makeServerIdentity(m_authority, m_fault);
    m_tls = QSslConfiguration::defaultConfiguration();
    m_tls.setPeerVerifyMode(QSslSocket::VerifyNone);
    m_tls.setLocalCertificate(QSslCertificate(identity.certificate));
    m_tls.setPrivateKey(QSslKey(identity.key, QSsl::Ec));
}

void SampleService::setCertificateFault(CertificateFault fault)
{
    m_fault = fault;
    if (!m_authority.key.isEmpty())
        makeTls();
}

quint16 SampleService::httpPort() const
{
    return m_http->serverPort();
}

quint16 SampleService::httpsPort() const
{
    return m_https->serverPort();
}

quint16 SampleService::otherPort() const
{
    return m_other->serverPort();
}

QString SampleService::httpAuthority() const
{
    return authorityOf(httpPort());
}

QString SampleService::httpsAuthority() const
{
    return authorityOf(httpsPort());
}

void SampleService::misbehave(const QString& pathGlob, const Misbehaviour& misbehaviour)
{
    m_rules.push_back({pathGlob.toUtf8(), misbehaviour});
}

void SampleService::serve(qintptr descriptor, Port port)
{
    QTcpSocket* socket = nullptr;
    if (port == Port::Https) {
        auto* const secure = new QSslSocket;
        secure->setSslConfiguration(m_tls);
        socket = secure;
    } else {
        socket = new QTcpSocket;
    }
    if (!socket->setSocketDescriptor(descriptor)) {
        delete socket;
        ::close(static_cast<int>(descriptor));
        return;
    }
    new Connection(
        socket,
        [this, port](Connection& connection, const HttpRequest& request) {
            handle(connection, request, port);
        },
        this);
    if (auto* const secure = qobject_cast<QSslSocket*>(socket))
        secure->startServerEncryption();
}

void SampleService::handle(Connection& connection, const HttpRequest& request, Port port)
{
    PlanContext context;
    context.bytesPerSecond = m_rate;
    context.headOnly = request.method == "HEAD";
    if (request.state == HttpRequest::State::Malformed) {
        connection.start(makePlan(statusReply(400), {}, context));
        return;
    }
    m_requests.append(request.target);
    m_requestBytes += request.target.size();
    while (m_requests.size() > requestsKept || m_requestBytes > requestBytesKept)
        m_requestBytes -= m_requests.takeFirst().size();
    if (request.method != "GET" && !context.headOnly) {
        connection.start(makePlan(statusReply(405), {}, context));
        return;
    }

    context.target = request.target;
    context.path = request.target.split('?').constFirst();
    const QByteArray httpOrigin = "http://" + httpAuthority().toLatin1();
    const QByteArray otherOrigin = "http://" + authorityOf(otherPort()).toLatin1();
    switch (port) {
    case Port::Http:
        context.origin = httpOrigin;
        break;
    case Port::Https:
        context.origin = "https://" + httpsAuthority().toLatin1();
        break;
    case Port::Other:
        context.origin = otherOrigin;
        break;
    }
    context.otherOrigin = port == Port::Other ? QByteArray() : otherOrigin;

    Misbehaviour misbehaviour = ruleFor(context.path);
    if (context.path.startsWith(oddPrefix)) {
        const qsizetype end = context.path.indexOf('/', oddPrefix.size());
        const QByteArray word = context.path.sliced(oddPrefix.size())
                                    .first((end < 0 ? context.path.size() : end) - oddPrefix.size());
        const std::optional<Misbehaviour> asked = parseMisbehaviour(QString::fromUtf8(word));
        if (!asked) {
            connection.start(makePlan(statusReply(404), {}, context));
            return;
        }
        misbehaviour = *asked;
        context.path = end < 0 ? QByteArray("/") : context.path.sliced(end);
    }

    // Package addresses are plain http, whichever way the document was asked for: downloads know no other.
    const QByteArray query =
        request.target.contains('?') ? request.target.sliced(request.target.indexOf('?') + 1) : QByteArray();
    m_site.answer(QString::fromUtf8(context.path), query, httpOrigin, &connection,
                  [context, misbehaviour, connection = &connection](const Reply& reply) {
                      connection->start(makePlan(reply, misbehaviour, context));
                  });
}

Misbehaviour SampleService::ruleFor(const QByteArray& path) const
{
    Misbehaviour found;
    for (const Rule& rule : m_rules)
        if (::fnmatch(rule.glob.constData(), path.constData(), 0) == 0)
            found = rule.misbehaviour;
    return found;
}

} // namespace varnhold::host
