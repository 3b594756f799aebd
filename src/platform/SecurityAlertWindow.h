#pragma once

#include "platform/NetworkBrowser.h"

#include <QPointer>

class QDialog;

namespace varnhold {

/// The "Security Alert" question on screen, with the buttons "&Yes" and "&No".
class SecurityAlertWindow : public SecurityAlert
{
public:
    bool accept(const QString& host, const QStringList& problems) override;
    void cancel() override;

    [[nodiscard]] bool isOpen() const { return !m_dialog.isNull(); }
    /// Presses "&Yes" of the open window; false when there is none. The answer comes from the event loop.
    bool pressYes();

private:
    QPointer<QDialog> m_dialog;
};

} // namespace varnhold
