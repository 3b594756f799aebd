#pragma once

#include "appearance/Skin.h"
#include "state/SettingsValues.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace varnhold {

class SkinChoicePage;
class frmMain;
class frmMenu;
class frmSettings;
class frmSplash;

/// The windows that a skin dresses.
class SkinnedWindows : public SkinHost
{
public:
    struct Windows
    {
        frmMain& main;
        frmSettings& settings;
        SkinChoicePage& skinPage; ///< of the settings
        frmMenu& menu;
        std::unique_ptr<frmSplash>& splash; ///< null once the program has started
    };

    explicit SkinnedWindows(const Windows& windows) : m_windows(windows) {}

    /// Opacity 0 to 255 of a window that stays, kept at 20 or above. Without effect on one that is not made,
    /// and on download windows.
    void setOpacity(OpacityOf which, int value);
    /// How the game list gets its icons anew.
    void setIconRedraw(std::function<void()> redraw) { m_redrawIcons = std::move(redraw); }

    /// One more window that stays; known by its object name.
    void add(QWidget& window) { m_added.push_back(&window); }
    void setCoverMenu(std::function<void()> build) { m_buildCoverMenu = std::move(build); }

    void showStatus(const QString& text) override;
    void showMessage(const QString& text) override;
    QWidget* window(const char* name) override;
    void enlargeMainWindow() override;
    void takeColors(const SkinPage& page) override;
    void buildCoverServerMenu() override;
    void redrawIcons() override;
    void showCatalogue(const SkinCatalogue& catalogue) override;
    void askForSkinFolder() override;

private:
    Windows m_windows;
    std::vector<QWidget*> m_added;
    std::function<void()> m_buildCoverMenu;
    std::function<void()> m_redrawIcons;
};

} // namespace varnhold
