#include "app/SkinnedWindows.h"

#include "app/main/frmMain.h"
#include "app/menu/frmMenu.h"
#include "app/settings/SkinChoicePage.h"
#include "app/settings/frmSettings.h"
#include "app/start/frmSplash.h"
#include "appearance/ButtonSigns.h"

#include <array>

namespace varnhold {

void SkinnedWindows::setOpacity(OpacityOf which, int value)
{
    static constexpr std::array names{"frmMain", "frmSettings", "frm_Winsock", "frmSearch", "frmDB"};
    if (QWidget* const found = window(names.at(static_cast<std::size_t>(which))))
        SetOpacity(value, *found);
}

void SkinnedWindows::showStatus(const QString& text)
{
    if (m_windows.splash)
        m_windows.splash->setStatus(text);
}

void SkinnedWindows::showMessage(const QString& text)
{
    if (m_windows.splash)
        m_windows.splash->setMessage(text);
}

QWidget* SkinnedWindows::window(const char* name)
{
    QWidget* const windows[] = {&m_windows.main, &m_windows.settings, &m_windows.menu};
    for (QWidget* const each : windows) {
        if (each->objectName() == QLatin1StringView(name))
            return each;
    }
    for (QWidget* const each : m_added) {
        if (each->objectName() == QLatin1StringView(name))
            return each;
    }
    return nullptr;
}

void SkinnedWindows::enlargeMainWindow()
{
    // While loading the bars have not been read yet, and must not be written.
    if (m_windows.splash)
        m_windows.main.startLayout(2);
    else
        m_windows.main.EnlargeMainWindow();
}

void SkinnedWindows::takeColors(const SkinPage& page)
{
    drawButtonSigns(m_windows.main);
    drawButtonSigns(m_windows.settings);
    for (const QWidget* const window : m_added)
        drawButtonSigns(*window);
    m_windows.main.setTipColors(page.Shape_Color[SkinPage::Fore], page.Shape_Color[SkinPage::Back]);
}

void SkinnedWindows::buildCoverServerMenu()
{
    if (m_buildCoverMenu)
        m_buildCoverMenu();
}

void SkinnedWindows::redrawIcons()
{
    if (m_redrawIcons)
        m_redrawIcons();
}

void SkinnedWindows::showCatalogue(const SkinCatalogue& catalogue)
{
    QStringList captions;
    for (const SkinCatalogue::Entry& skin : catalogue.entries())
        captions << skin.caption;
    m_windows.menu.fill("mnuSkin", captions);
}

void SkinnedWindows::askForSkinFolder()
{
    m_windows.settings.showPageOver(m_windows.main, m_windows.skinPage);
    m_windows.skinPage.askForSkin();
}

} // namespace varnhold
