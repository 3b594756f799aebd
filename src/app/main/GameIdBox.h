#pragma once

#include <QLineEdit>

namespace varnhold {

class MessageBoxes;

/// txtGameID: takes digits and letters, turns letters to upper case, and asks for a lookup on Enter. What is
/// typed and what is pasted go different ways: a typed character that does not belong brings up a box, a
/// pasted one stays unless it is a "-" or a blank.
class GameIdBox : public QLineEdit
{
    Q_OBJECT

public:
    GameIdBox(MessageBoxes& boxes, QWidget* parent);

Q_SIGNALS:
    void fetchRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void type(QChar character);
    void filter();

    MessageBoxes& m_boxes;
};

} // namespace varnhold
