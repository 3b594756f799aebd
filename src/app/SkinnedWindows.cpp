#include "app/SkinnedWindows.h"

#include "app/main/frmMain.h"
#include "app/menu/frmMenu.h"
#include "app/settings/frmSettings.h"
#include "app/start/frmSplash.h"
#include "appearance/ButtonSigns.h"
#include "controls/CTooltip/CTooltip.h"

#include <array>

namespace varnhold {

SkinnedWindows::SkinnedWindows(frmMain& main, frmSettings& settings, frmMenu& menu,
                               std::unique_ptr<frmSplash>& splash)
    : m_main(main), m_settings(settings), m_menu(menu), m_splash(splash)
{
}

void SkinnedWindows::setOpacity(OpacityOf which, int value)
{
    static constexpr std::array names{"frmMain", "frmSettings", "frm_Winsock", "frmSearch", "frmDB"};
    if (QWidget* const found = window(names.at(static_cast<std::size_t>(which))))
        SetOpacity(value, *found);
}

void SkinnedWindows::showStatus(const QString& text)
{
    if (m_splash)
        m_splash->setStatus(text);
}

void SkinnedWindows::showMessage(const QString& text)
{
    if (m_splash)
        m_splash->setMessage(text);
}

QWidget* SkinnedWindows::window(const char* name)
{
    QWidget* const windows[] = {&m_main, &m_settings, &m_menu};
    for (QWidget* const each : windows) {
        if (each->objectName() == QLatin1StringView(name))
            return each;
    }
    return nullptr;
}

void SkinnedWindows::enlargeMainWindow()
{
    // While loading the bars have not been read yet, and must not be written.
    if (m_splash)
        m_main.startLayout(2);
    else
        m_main.EnlargeMainWindow();
}

void SkinnedWindows::takeColors(const SkinPage& page)
{
    drawButtonSigns(m_main);
    drawButtonSigns(m_settings);
    for (CTooltip* const tip : m_main.findChildren<CTooltip*>()) {
        tip->setForeColor(page.Shape_Color[SkinPage::Fore]);
        tip->setBackColor(page.Shape_Color[SkinPage::Back]);
    }
}

void SkinnedWindows::showCatalogue(const SkinCatalogue& catalogue)
{
    QStringList captions;
    for (const SkinCatalogue::Entry& skin : catalogue.entries())
        captions << skin.caption;
    m_menu.fill("mnuSkin", captions);
}

void SkinnedWindows::askForSkinFolder()
{
    m_settings.askForSkin(m_main);
}

} // namespace varnhold
