#pragma once

#include "state/Hosts.h"

#include <functional>

namespace varnhold {

class Clipboard;
class ColorDialog;
class FileDialogs;
class FontDialog;
class MessageBoxes;
class Screen;
class Shell;
class SocketMaker;
class SoundPlayer;
class Trash;

/// The world outside the program; a test gives it what it likes.
struct World
{
    MessageBoxes& boxes;
    FileDialogs& dialogs;
    ColorDialog& colors;
    FontDialog& fonts;
    Clipboard& clipboard;
    Shell& shell;
    SoundPlayer& player;
    SocketMaker& sockets;
    const Screen& screen;
    Trash* trash = nullptr; ///< null: commands that need it stand disabled
    std::function<bool()> isFirst;
    std::function<bool()> activatePrevious;
    std::function<Hosts()> findHosts;
    std::function<void()> endProcess; ///< at once, exit code 0
};

} // namespace varnhold
