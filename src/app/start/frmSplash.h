#pragma once

#include "platform/ShapedWindow.h"

class QLabel;

namespace varnhold {

/// What stands on the screen while the program loads: a status line and the one way out, a double click on
/// "Please wait!".
class frmSplash : public ShapedWindow
{
    Q_OBJECT

public:
    frmSplash();

    void setStatus(const QString& text);  ///< lblLoading
    void setMessage(const QString& text); ///< lblMessage
    void setNews(const QString& text);    ///< lblstat; hidden without a text
    [[nodiscard]] bool hasNews() const;
    [[nodiscard]] bool isAbandoned() const { return m_abandoned; }

Q_SIGNALS:
    /// The user does not want to wait: the program is to end.
    void abandoned();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QLabel* addLabel(const char* name, const QRect& place, const QString& text);

    QLabel* m_loading;
    QLabel* m_message;
    QLabel* m_warning;
    QLabel* m_news;
    bool m_abandoned = false;
};

} // namespace varnhold
