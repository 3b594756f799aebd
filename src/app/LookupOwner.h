#pragma once

#include "app/Common.h"
#include "app/start/AutoAlert.h"
#include "lookup/Lookup.h"
#include "platform/NetworkBrowser.h"
#include "platform/SecurityAlertWindow.h"

#include <QObject>

namespace varnhold {

/// Looking up a title: the browser, the question about certificates, and the commands of the document.
class LookupOwner : public QObject
{
    Q_OBJECT

public:
    explicit LookupOwner(const Common& common);

    [[nodiscard]] Lookup& lookup() { return m_lookup; }
    [[nodiscard]] BrowserControl& browser() { return m_browser; }
    [[nodiscard]] CertificateWatch& certificates() { return m_autoAlert.watch(); }

private:
    void openWeb();
    void showRaw();

    Common m_common;
    SecurityAlertWindow m_alert;
    AutoAlert m_autoAlert;
    NetworkBrowser m_browser;
    Lookup m_lookup;
};

} // namespace varnhold
