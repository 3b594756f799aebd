#pragma once

#include <QFocusFrame>
#include <QPointer>

class QApplication;

namespace varnhold {

/// Where the keyboard is: one hard line in the accent round the lists, boxes and bars that show the focus by
/// nothing of their own. One for the program; it follows the focus.
class FocusLine : public QObject
{
    Q_OBJECT

public:
    explicit FocusLine(QApplication& application);

private:
    void follow(QWidget* focused);

    QPointer<QFocusFrame> m_frame; ///< lies beside the control, and ends with its window
};

} // namespace varnhold
