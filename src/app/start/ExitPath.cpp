#include "app/start/ExitPath.h"

#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "state/Settings.h"
#include "state/Sounds.h"
#include "state/WaitLoop.h"

namespace varnhold {

using namespace Qt::StringLiterals;

ExitPath::ExitPath(const Services& services, ExitHost& host) : m_services(services), m_host(host) {}

bool ExitPath::run()
{
    // A second wish while the first one asks or waits adds nothing.
    if (m_running)
        return false;
    m_running = true;
    const Settings& settings = m_services.settings;
    if (settings.isChecked(Check::Exit)) {
        const BoxAnswer answer = m_services.boxes.show({.text = u"Are you sure you want to exit?"_s,
                                                        .title = u"Exit?"_s,
                                                        .icon = BoxIcon::Question,
                                                        .buttons = BoxButtons::YesNo});
        if (answer != BoxAnswer::Yes) {
            m_host.enableExitButton();
            m_running = false;
            return false;
        }
    }
    m_services.sounds.play(Sound::Close);
    if (settings.isChecked(Check::Fade)) {
        for (int counter = 255; counter >= 1; --counter)
            m_host.setFadeOpacity(counter - 1);
    }
    m_host.unloadOtherWindows();
    Wait_Loop(2, m_services.pump);
    m_host.unloadMainWindow();
    m_host.endProgram();
    return true;
}

} // namespace varnhold
