#pragma once

#include <QLineEdit>

namespace varnhold {

class MessageBoxes;

/// txtGameID: takes digits and letters and turns letters to upper case. What is typed and what is pasted go
/// different ways: a typed character that does not belong brings up a box, a pasted one stays unless it is a
/// "-" or a blank.
class GameIdBox : public QLineEdit
{
    Q_OBJECT

public:
    enum class Use {
        Lookup, ///< nine characters at most; Enter asks for the lookup
        Entry,  ///< of any length; Enter is a character that does not belong
    };

    GameIdBox(MessageBoxes& boxes, QWidget* parent, Use use = Use::Lookup);

Q_SIGNALS:
    void fetchRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void type(QChar character);
    void filter();

    MessageBoxes& m_boxes;
    Use m_use;
};

} // namespace varnhold
