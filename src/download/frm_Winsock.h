#pragma once

#include "download/DownloadClient.h"
#include "download/DownloadHost.h"
#include "platform/MessagePump.h"
#include "platform/ShapedWindow.h"

#include <functional>
#include <memory>

class QLabel;

namespace varnhold {

class ButtonEx;
class CaptionDrag;
class ElidedLabel;
class Screen;
class Settings;
class Sounds;
class XP_ProgressBar;
struct ApplicationState;

/// The window of one download. It shows what its client says, and lives as long as that has something to do:
/// it destroys itself once it is unloaded and its client has left every wait.
class frm_Winsock : public ShapedWindow, public DownloadWindow
{
    Q_OBJECT

public:
    struct Services
    {
        DownloadClient::Services client;
        ApplicationState& state;
        const Settings& settings;
        Sounds& sounds;
        const Screen& screen;
        /// Gives the window its look.
        std::function<void(QWidget&)> skin;
    };

    frm_Winsock(const Services& services, QWidget* owner);
    ~frm_Winsock() override;

    DownloadClient& client() override { return *m_client; }
    void place(double leftTwips, double topTwips) override;
    void loadSkin() override;
    void show() override;

    /// Closes as btnExit does. No effect on a window that is unloaded.
    void unload();

Q_SIGNALS:
    /// Raised once, when the window goes off the screen.
    void unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The program's pump as the client calls it. A client that stands in one may not be destroyed, and one
    /// whose window is gone has no reason to go on waiting.
    class ClientPump : public MessagePump
    {
    public:
        ClientPump(MessagePump& inner, std::function<void()> left) : m_inner(inner), m_left(std::move(left))
        {
        }
        bool pump() override { return run(&MessagePump::pump); }
        bool pumpNext() override { return run(&MessagePump::pumpNext); }
        void end() { m_ended = true; }
        [[nodiscard]] bool isRunning() const { return m_depth > 0; }

    private:
        bool run(bool (MessagePump::*how)());

        MessagePump& m_inner;
        std::function<void()> m_left;
        int m_depth = 0;
        bool m_ended = false;
    };

    ElidedLabel* addLabel(const char* name, const QRect& place);
    void addHeading(const QString& text, int row);
    void build();
    void showLabels();
    void onUnload();
    void destroyWhenFree();

    Services m_services;
    ClientPump m_pump;
    std::unique_ptr<DownloadClient> m_client;
    bool m_unloaded = false;

    ElidedLabel* m_lblName = nullptr;
    ElidedLabel* m_lblUrl = nullptr;
    ElidedLabel* m_lblPath = nullptr;
    ElidedLabel* m_lblFileSize = nullptr;
    ElidedLabel* m_lblLoaded = nullptr;
    ElidedLabel* m_lblBytesR = nullptr;
    ElidedLabel* m_lblkBytes = nullptr;
    ElidedLabel* m_lblSpeed = nullptr;
    ElidedLabel* m_lblDone = nullptr;
    ElidedLabel* m_lblCaption = nullptr;
    QLabel* m_image = nullptr;
    XP_ProgressBar* m_bar = nullptr;
    ButtonEx* m_cancel = nullptr;
};

} // namespace varnhold
