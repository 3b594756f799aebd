#pragma once

#include "app/start/frmSplash.h"
#include "state/SettingsLoad.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

class QWidget;

namespace varnhold {

class BrowserControl;
class CertificateWatch;
class MessageBoxes;
class MessagePump;
class Screen;
class Settings;
class SettingsFile;
class Sounds;
class frmMain;
class frmSettings;
struct ApplicationState;
struct Hosts;
struct Paths;

/// From the program's start to the idle main window, step by step; the order matters.
class StartUp : private SettingsLoadHost
{
public:
    struct Services
    {
        ApplicationState& state;
        Settings& settings;
        SettingsFile& file;
        const Paths& paths;
        Hosts& hosts;
        MessageBoxes& boxes;
        Sounds& sounds;
        MessagePump& pump;
        const Screen& screen;
        BrowserControl& browser;
        CertificateWatch& certificates;
        frmMain& main;
        frmSettings& settingsWindow;
        /// Made in the load unless there is one: it may be on the screen before the other windows are built.
        std::unique_ptr<frmSplash>& splash;
        std::function<void(QWidget&)> dressSplash;
        std::function<void()> applySkin;    ///< to all windows; tells its failures itself
        std::function<void()> loadGameList; ///< tells its failures itself
        std::function<void(QWidget&)> shape;
        std::function<void(OpacityOf, int)> setOpacity; ///< of a window that stays
        std::function<void()> loadCoverServers;         ///< the page's rows and the menu

        std::function<bool()> isFirst;          ///< false: another instance of the program runs
        std::function<bool()> activatePrevious; ///< true when that one answered and came to the front
        std::function<Hosts()> findHosts;       ///< may throw RunTimeError
        /// What the splash says of a newer version; empty: none. Pumps events. Null: not asked.
        std::function<QString()> checkVersion = {};
    };

    enum class Outcome { Running, Ended };

    explicit StartUp(Services services);
    ~StartUp() override;

    /// An error in a step ends the load there, silently: what follows it does not happen, the splash and the
    /// top-most state stay, and the main window is shown as far as it came.
    Outcome run();

    /// The splash, while there is one.
    [[nodiscard]] frmSplash* splash() { return m_services.splash.get(); }
    /// Runs when the user ends the program from the splash, during the load or after a failed one.
    void onAbandoned(std::function<void()> action) { m_onAbandoned = std::move(action); }

private:
    bool yieldsToPrevious();
    void load();
    void showSplash();
    void findHosts();
    void checkVersion();
    void leaveSplash();
    void placeMainWindow();
    void pumpOnce();

    void showStatus(const QString& text) override;
    void showMessage(const QString& text) override;
    void startCertificateWatch() override;
    void setBarMainTop(double twips) override;
    void setBarLeftTop(double twips) override;
    void applyOpacity(OpacityOf window, int value) override;
    void loadCoverServers() override;

    Services m_services;
    std::function<void()> m_onAbandoned;
    QElapsedTimer m_sinceSplash;
    std::unique_ptr<frmSplash> m_news; ///< the splash that stays for a while, beside the program in use
};

} // namespace varnhold
