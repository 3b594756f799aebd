#pragma once

#include "platform/BrowserControl.h"
#include "platform/HttpWalk.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

namespace varnhold {

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

/// The browser control over http and https: well-formed XML is shown as its tree text, and what is no XML as
/// a page that says "The XML page cannot be displayed".
///
/// A certificate that does not verify ends its connection; the question is asked after that, and a Yes
/// fetches once more. So no handshake waits for the user, and nothing of the old page stands on the stack
/// when a new one is asked for meanwhile. A Yes is remembered for that certificate, host and set of errors.
class NetworkBrowser : public BrowserControl
{
    Q_OBJECT

public:
    NetworkBrowser(SecurityAlert& alert, TlsPolicy policy, QObject* parent = nullptr,
                   const HttpWalkLimits& limits = {});
    ~NetworkBrowser() override;

    void navigate(const QString& url) override;
    [[nodiscard]] bool busy() const override { return m_busy; }
    [[nodiscard]] std::optional<QString> bodyText() const override { return m_text; }

private:
    void later(std::function<void()> action);
    void stop();
    void onHead();
    void onBody(const QByteArray& piece);
    void onRefused(const QString& authority, const QStringList& problems);
    void show(const QString& text);
    void fail(int code);

    SecurityAlert& m_alert;
    HttpWalkLimits m_limits;
    HttpWalk m_walk;
    quint64 m_page = 0; ///< counts navigate() calls; what belongs to an older page is dropped
    QByteArray m_document;
    bool m_busy = false;
    bool m_asking = false;
    std::optional<QString> m_text;
};

} // namespace varnhold
