#pragma once

#include "platform/BrowserControl.h"

#include <QList>
#include <QSslCertificate>
#include <QSslError>

#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

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

/// The browser control on Qt's network manager. A document is bounded to 64 MiB and 20 redirects.
class NetworkBrowser : public BrowserControl
{
    Q_OBJECT

public:
    /// `policy` gives the TLS policy of a host[:port].
    NetworkBrowser(SecurityAlert& alert, std::function<HostTls(const QString& authority)> policy,
                   QObject* parent = nullptr);
    ~NetworkBrowser() override;

    void navigate(const QString& url) override;
    [[nodiscard]] bool busy() const override;
    [[nodiscard]] std::optional<QString> bodyText() const override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace varnhold
