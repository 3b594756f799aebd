#pragma once

#include "app/settings/SettingsPage.h"

#include <QTimer>

class QPlainTextEdit;

namespace varnhold {

class MessagePump;

/// What is taken out of titles.
class UnwantedPage : public SettingsPage
{
    Q_OBJECT

public:
    UnwantedPage(Settings& settings, MessagePump& pump);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addTextBox();
    void onTextChanged();
    void updateTips();
    void warn();

    MessagePump& m_pump;
    QTimer m_warnLater; ///< the key goes its way first
    QCheckBox* m_remove;
    QPlainTextEdit* m_text;
    QLabel* m_count;
    QLabel* m_warning;
};

} // namespace varnhold
