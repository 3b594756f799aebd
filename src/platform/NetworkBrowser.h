#pragma once

#include "platform/BrowserControl.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QSslError>
#include <QUrl>

#include <chrono>
#include <functional>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

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

/// The browser control on Qt's network manager: http and https, well-formed XML shown as its tree text. What
/// is no XML is shown as a page that says "The XML page cannot be displayed".
///
/// A certificate that does not verify ends its connection; the question is asked after that, and a Yes
/// fetches once more. Asking while the handshake waits would hold up the manager's thread, and with it the
/// page that the user asks for meanwhile. A Yes is remembered for that certificate, host and set of errors.
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
    QNetworkAccessManager& manager();
    void later(std::function<void()> action);
    void stop();
    void fetch(const QUrl& url);
    [[nodiscard]] QNetworkRequest requestFor(const QUrl& url) const;
    void onHead();
    void onData();
    void onProgress(qint64 received, qint64 total);
    void onSslErrors(const QList<QSslError>& problems);
    void onFinished();
    void redirect(const QUrl& from, const QByteArray& location);
    void ask();
    void show(const QString& text);
    void fail(int code);

    SecurityAlert& m_alert;
    std::function<HostTls(const QString&)> m_policy;
    BrowserLimits m_limits;
    QNetworkAccessManager* m_manager = nullptr; ///< child, made at first use
    QNetworkReply* m_reply = nullptr;
    quint64 m_page = 0; ///< counts navigate() calls; what belongs to an older page is dropped
    QUrl m_url;
    int m_redirects = 0;
    QByteArray m_document;
    bool m_busy = false;
    bool m_asking = false;
    std::optional<QString> m_text;
    QList<QSslError> m_problems; ///< of the current connection, not yet accepted
    QByteArray m_problemsKey;
    QSet<QByteArray> m_accepted;
};

} // namespace varnhold
