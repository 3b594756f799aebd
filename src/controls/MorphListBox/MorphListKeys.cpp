#include "controls/MorphListBox/MorphListKeys.h"

#include <qnamespace.h>

namespace varnhold {

int keyCodeOf(int key)
{
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return keycode::f1 + key - Qt::Key_F1;
    switch (key) {
    case Qt::Key_Backspace:
        return keycode::backspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return keycode::tab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return keycode::enter;
    case Qt::Key_Shift:
        return keycode::shift;
    case Qt::Key_Control:
        return keycode::ctrl;
    case Qt::Key_Alt:
        return keycode::alt;
    case Qt::Key_Escape:
        return keycode::escape;
    case Qt::Key_Space:
        return keycode::space;
    case Qt::Key_PageUp:
        return keycode::pageUp;
    case Qt::Key_PageDown:
        return keycode::pageDown;
    case Qt::Key_End:
        return keycode::end;
    case Qt::Key_Home:
        return keycode::home;
    case Qt::Key_Left:
        return keycode::left;
    case Qt::Key_Up:
        return keycode::up;
    case Qt::Key_Right:
        return keycode::right;
    case Qt::Key_Down:
        return keycode::down;
    case Qt::Key_Insert:
        return keycode::insert;
    case Qt::Key_Delete:
        return keycode::del;
    default:
        return 0;
    }
}

} // namespace varnhold
