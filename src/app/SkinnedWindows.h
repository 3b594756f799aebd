#pragma once

#include "appearance/Skin.h"
#include "state/SettingsValues.h"

#include <memory>

namespace varnhold {

class frmMain;
class frmMenu;
class frmSettings;
class frmSplash;

/// The windows that a skin dresses.
class SkinnedWindows : public SkinHost
{
public:
    SkinnedWindows(frmMain& main, frmSettings& settings, frmMenu& menu, std::unique_ptr<frmSplash>& splash);

    /// Opacity 0 to 255 of a window that stays, kept at 20 or above. Without effect on one that is not made,
    /// and on download windows.
    void setOpacity(OpacityOf which, int value);

    void showStatus(const QString& text) override;
    void showMessage(const QString& text) override;
    QWidget* window(const char* name) override;
    void enlargeMainWindow() override;
    void takeColors(const SkinPage& page) override;
    void showCatalogue(const SkinCatalogue& catalogue) override;
    void askForSkinFolder() override;

private:
    frmMain& m_main;
    frmSettings& m_settings;
    frmMenu& m_menu;
    std::unique_ptr<frmSplash>& m_splash;
};

} // namespace varnhold
