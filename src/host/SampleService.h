#pragma once

#include "host/Certificates.h"
#include "host/Misbehaviour.h"
#include "host/Site.h"

#include <QObject>
#include <QSslConfiguration>

#include <memory>
#include <vector>

class QFile;

namespace varnhold::host {

class Connection;
class Listener;
struct HttpRequest;

/// A small server on loopback that plays every outside host: update documents, packages with true sums,
/// redirects, covers, the version file and the id list, over http and https. Made so that no request can
/// end it. Lives in one thread with an event loop.
class SampleService : public QObject
{
    Q_OBJECT

public:
    explicit SampleService(QObject* parent = nullptr);
    ~SampleService() override;

    /// Listens on 127.0.0.1; 0 picks a free port. Throws RunTimeError with a sentence when a port is taken or
    /// the certificate or its file cannot be made. `caFile`: where the authority's certificate is written;
    /// empty: a file in memory that is gone with the service, also when that is killed.
    void start(quint16 httpPort = 0, quint16 httpsPort = 0, const QString& caFile = {});

    /// The http port that 0 means when it is free. Before start().
    void preferPort(quint16 port) { m_preferredPort = port; }

    [[nodiscard]] quint16 httpPort() const;
    [[nodiscard]] quint16 httpsPort() const;
    [[nodiscard]] quint16 otherPort() const; ///< a second http port, which redirects may lead to
    [[nodiscard]] QString caFile() const { return m_caFile; }
    [[nodiscard]] QString httpAuthority() const;  ///< "127.0.0.1:port"
    [[nodiscard]] QString httpsAuthority() const; ///< "127.0.0.1:port"

    /// What the service shows; titles and pages may be added at any time.
    Site& site() { return m_site; }

    /// Pace of packages in bytes a second; 0: as fast as the peer takes them. 30 MB/s at first.
    void setRate(qint64 bytesPerSecond) { m_rate = bytesPerSecond; }
    /// Answers to paths that match the glob (`*` matches "/" too; without query) go wrong. The last rule that
    /// matches counts; Odd::None takes earlier ones back.
    void misbehave(const QString& pathGlob, const Misbehaviour& misbehaviour);
    /// The certificate that connections from now on are shown. Before or after start().
    void setCertificateFault(CertificateFault fault);

    /// Targets of the last requests, as they came over the wire: 10000 at most, and a mebibyte.
    [[nodiscard]] const QList<QByteArray>& requests() const { return m_requests; }

private:
    struct Rule
    {
        QByteArray glob;
        Misbehaviour misbehaviour;
    };
    enum class Port { Http, Https, Other };

    static void open(Listener& listener, quint16 port);
    void writeCaFile(const QString& wanted);
    void makeTls();
    void serve(qintptr descriptor, Port port);
    void handle(Connection& connection, const HttpRequest& request, Port port);
    [[nodiscard]] Misbehaviour ruleFor(const QByteArray& path) const;

    Site m_site;
    std::unique_ptr<Listener> m_http;
    std::unique_ptr<Listener> m_https;
    std::unique_ptr<Listener> m_other;
    Identity m_authority;
    QSslConfiguration m_tls;
    CertificateFault m_fault = CertificateFault::None;
    std::unique_ptr<QFile> m_caKept; ///< open, so that the unnamed one stays
    QString m_caFile;
    quint16 m_preferredPort = 0;
    qint64 m_rate = 30'000'000;
    std::vector<Rule> m_rules;
    QList<QByteArray> m_requests;
    qsizetype m_requestBytes = 0;
};

} // namespace varnhold::host
