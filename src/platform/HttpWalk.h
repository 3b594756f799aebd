#pragma once

#include "platform/HttpResponseReader.h"

#include <QAbstractSocket>
#include <QByteArray>
#include <QList>
#include <QObject>
#include <QSet>
#include <QSslError>
#include <QStringList>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>

class QTcpSocket;

namespace varnhold {

/// TLS policy of one host, as hosts.ini gives it.
struct HostTls
{
    QString certificateFile;
    bool allowsOldTls = false;
};

/// The TLS policy of a host[:port].
using TlsPolicy = std::function<HostTls(const QString& authority)>;

struct HttpWalkLimits
{
    std::chrono::milliseconds silence{60'000};     ///< a peer that sends nothing for so long has timed out
    qint64 largestBody = qint64{64} * 1024 * 1024; ///< bytes
    int mostRedirects = 20;
};

/// The way of one url over http or https: connection, certificate, request, redirects, and the answer as it
/// comes. One walk at a time; events come from the event loop, later than start() returns, and after stop()
/// none comes. Whoever hears one may start anew or stop inside it.
///
/// It stands on a socket of its own: Qt's network manager reads a head without end into memory and cannot be
/// stopped from it.
class HttpWalk : public QObject
{
    Q_OBJECT

public:
    explicit HttpWalk(TlsPolicy policy, QObject* parent = nullptr);
    ~HttpWalk() override;

    /// Leaves what is under way and starts this one.
    void start(const QString& url, const HttpWalkLimits& limits);
    void stop();
    /// After certificateRefused(): remembers that certificate, host and set of errors for good, and asks once
    /// more.
    void acceptCertificate();

    [[nodiscard]] QString address() const { return m_url.toString(); } ///< of the last hop
    [[nodiscard]] int status() const { return m_response.status(); }   ///< 0 before headCame()
    [[nodiscard]] QByteArray header(QByteArrayView name) const { return m_response.header(name); }
    [[nodiscard]] qint64 bodyLength() const { return m_response.bodyLength(); } ///< as told; -1: not told
    [[nodiscard]] qint64 bodyReceived() const { return m_response.bodyReceived(); }

Q_SIGNALS:
    void connecting(const QString& authority); ///< once a hop
    void headCame();                           ///< of an answer that leads no further
    void bodyCame(const QByteArray& piece);    ///< never empty
    void completed();                          ///< the body is whole
    /// The certificate of `authority` does not verify, and its connection is gone. `problems`: one sentence
    /// each. The walk rests until it is told what to do.
    void certificateRefused(const QString& authority, const QStringList& problems);
    void failed(int code); ///< one of `navigation`; nothing is under way any more

private:
    void later(std::function<void()> action);
    void dropSocket();
    void hop(const QUrl& url);
    void connectSecurely();
    void sendRequest();
    void onData();
    void onSocketError(QAbstractSocket::SocketError error);
    void onSslErrors(const QList<QSslError>& problems);
    void onAnswer();
    void redirect(const QByteArray& location);
    void tellProblems();
    void fail(int code);

    TlsPolicy m_policy;
    HttpWalkLimits m_limits;
    QTcpSocket* m_socket = nullptr; ///< child
    QTimer m_silence;
    HttpResponseReader m_response{0};
    quint64 m_walk = 0; ///< counts starts and stops; what belongs to an older one is dropped
    QUrl m_url;
    int m_redirects = 0;
    bool m_connected = false;
    bool m_headTold = false;
    QList<QSslError> m_problems; ///< of the current connection, not accepted
    QByteArray m_problemsKey;
    QSet<QByteArray> m_accepted;
};

/// host[:port] of a url, as policies are asked for it.
QString authorityOf(const QUrl& url);

} // namespace varnhold
