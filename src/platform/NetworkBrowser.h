#pragma once

#include "platform/BrowserControl.h"
#include "platform/HttpResponseReader.h"

#include <QAbstractSocket>
#include <QByteArray>
#include <QList>
#include <QSet>
#include <QSslError>
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

/// The "Security Alert" question. Implementations block in a nested loop until it is answered; cancel()
/// ends an open question with No, since a new page was asked for.
class SecurityAlert
{
public:
    virtual ~SecurityAlert() = default;
    /// True: Yes. `problems`: one sentence each about what is wrong with the certificate of `host`.
    virtual bool accept(const QString& host, const QStringList& problems) = 0;
    virtual void cancel() = 0;
};

struct BrowserLimits
{
    std::chrono::milliseconds silence{60000}; ///< a peer that sends nothing for so long has timed out
    qint64 largestDocument = qint64{64} * 1024 * 1024; ///< bytes
    int mostRedirects = 20;
};

/// The browser control over http and https: well-formed XML is shown as its tree text, and what is no XML as
/// a page that says "The XML page cannot be displayed".
///
/// It stands on a socket of its own: Qt's network manager reads a head without end into memory and cannot be
/// stopped from it.
///
/// A certificate that does not verify ends its connection; the question is asked after that, and a Yes
/// fetches once more. So no handshake waits for the user, and nothing of the old page stands on the stack
/// when a new one is asked for meanwhile. A Yes is remembered for that certificate, host and set of errors.
class NetworkBrowser : public BrowserControl
{
    Q_OBJECT

public:
    /// `policy` gives the TLS policy of a host[:port].
    NetworkBrowser(SecurityAlert& alert, std::function<HostTls(const QString& authority)> policy,
                   QObject* parent = nullptr, const BrowserLimits& limits = {});
    ~NetworkBrowser() override;

    void navigate(const QString& url) override;
    [[nodiscard]] bool busy() const override { return m_busy; }
    [[nodiscard]] std::optional<QString> bodyText() const override { return m_text; }

private:
    void later(std::function<void()> action);
    void stop();
    void dropSocket();
    void fetch(const QUrl& url);
    void connectSecurely();
    void sendRequest();
    void onData();
    void onSocketError(QAbstractSocket::SocketError error);
    void onSslErrors(const QList<QSslError>& problems);
    void onAnswer();
    void redirect(const QByteArray& location);
    void ask();
    void show(const QString& text);
    void fail(int code);

    SecurityAlert& m_alert;
    std::function<HostTls(const QString&)> m_policy;
    BrowserLimits m_limits;
    QTcpSocket* m_socket = nullptr; ///< child
    QTimer m_silence;
    HttpResponseReader m_response;
    quint64 m_page = 0; ///< counts navigate() calls; what belongs to an older page is dropped
    QUrl m_url;
    int m_redirects = 0;
    bool m_connected = false;
    bool m_told = false; ///< that the page is being downloaded
    bool m_busy = false;
    bool m_asking = false;
    std::optional<QString> m_text;
    QList<QSslError> m_problems; ///< of the current connection, not yet accepted
    QByteArray m_problemsKey;
    QSet<QByteArray> m_accepted;
};

} // namespace varnhold
