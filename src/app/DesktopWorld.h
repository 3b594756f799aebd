#pragma once

#include "app/Program.h"
#include "platform/DesktopTrash.h"
#include "platform/QtClipboard.h"
#include "platform/QtColorDialog.h"
#include "platform/QtFileDialogs.h"
#include "platform/QtFontDialog.h"
#include "platform/QtMessageBoxes.h"
#include "platform/QtScreen.h"
#include "platform/QtShell.h"
#include "platform/SdlSoundPlayer.h"
#include "platform/TcpSocket.h"

#include <cstdlib>
#include <functional>

namespace varnhold {

/// The desktop's own services for a program that runs on it.
class DesktopWorld
{
public:
    struct Instance
    {
        std::function<bool()> isFirst;
        std::function<bool()> activatePrevious;
    };

    /// Refers to this object, which must outlive the program.
    [[nodiscard]] World world(Instance instance, std::function<Hosts()> findHosts)
    {
        return {.boxes = m_boxes,
                .dialogs = m_dialogs,
                .colors = m_colors,
                .fonts = m_fonts,
                .clipboard = m_clipboard,
                .shell = m_shell,
                .player = m_player,
                .sockets = m_sockets,
                .screen = m_screen,
                .trash = &m_trash,
                .isFirst = std::move(instance.isFirst),
                .activatePrevious = std::move(instance.activatePrevious),
                .findHosts = std::move(findHosts),
                .endProcess = [] { std::_Exit(0); }};
    }
    /// Of the only program on the desktop, without hosts.
    [[nodiscard]] World lonelyWorld()
    {
        return world({[] { return true; }, [] { return false; }}, [] { return Hosts(); });
    }

private:
    QtMessageBoxes m_boxes;
    QtFileDialogs m_dialogs;
    QtColorDialog m_colors;
    QtFontDialog m_fonts;
    QtClipboard m_clipboard;
    QtShell m_shell;
    SdlSoundPlayer m_player;
    TcpSocketMaker m_sockets;
    QtScreen m_screen;
    DesktopTrash m_trash;
};

} // namespace varnhold
