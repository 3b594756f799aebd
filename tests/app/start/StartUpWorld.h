#pragma once

#include "../SettingsWindow.h"

#include "app/start/StartUp.h"
#include "lookup/CertificateWatch.h"
#include "state/Hosts.h"
#include "support/FakeBrowser.h"
#include "support/FakeFileDialogs.h"
#include "support/FakePump.h"

namespace varnhold::test {

class FakeCertificateHost : public CertificateWatchHost
{
public:
    bool pressYes() override { return false; }
    [[nodiscard]] QString caption() const override { return {}; }
    void setCaption(const QString&) override {}
    void setTimer1(bool on) override { timer1 = on; }
    void setTimer2(bool) override {}

    bool timer1 = false;
};

/// A start of the program with its real windows.
struct StartUpWorld : AppWorld
{
    StartUpWorld()
    {
        startUp.onAbandoned([this] { pump.ending = true; });
    }

    void writeSettings(const QByteArray& lines) const
    {
        root.write(QStringLiteral("Settings.ini"), "[Settings]\r\n" + lines);
    }

    FakeBrowser browser;
    FakePump pump;
    FakeFileDialogs dialogs;
    Hosts hosts;
    FakeCertificateHost certificateHost;
    CertificateWatch certificates{settings, certificateHost};
    frmMain main{{state, settings, list, boxes, sounds, screen, root.paths()}};
    SkinPage skinPage;
    SettingsWindow pages{*this, dialogs, pump, skinPage};
    frmSettings& settingsWindow = pages.window;
    bool first = true;
    bool previousAnswers = true;
    std::unique_ptr<frmSplash> splash;
    std::function<Hosts()> findHosts = [] { return Hosts(); };
    std::function<void()> loadGameList = [] {};
    StartUp startUp{{.state = state,
                     .settings = settings,
                     .file = file,
                     .paths = root.paths(),
                     .hosts = hosts,
                     .boxes = boxes,
                     .sounds = sounds,
                     .pump = pump,
                     .screen = screen,
                     .browser = browser,
                     .certificates = certificates,
                     .main = main,
                     .settingsWindow = settingsWindow,
                     .splash = splash,
                     .dressSplash = [](QWidget&) {},
                     .applySkin = [this] { main.startLayout(readLayout(file, state)); },
                     .loadGameList = [this] { loadGameList(); },
                     .shape = [](QWidget&) {},
                     .setOpacity =
                         [this](OpacityOf which, int value) {
                             if (which == OpacityOf::Main)
                                 SetOpacity(value, main);
                         },
                     .loadCoverServers = [] {},
                     .isFirst = [this] { return first; },
                     .activatePrevious = [this] { return previousAnswers; },
                     .findHosts = [this] { return findHosts(); }}};
};

} // namespace varnhold::test
