#pragma once

#include "download/DownloadClient.h"
#include "download/DownloadPlanner.h"
#include "lookup/UpdateList.h"
#include "platform/RunTimeError.h"
#include "state/Sounds.h"
#include "support/FakeClock.h"
#include "support/FakeDownloadFiles.h"
#include "support/FakeFileDialogs.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakePump.h"
#include "support/FakeSocket.h"
#include "support/FakeSoundPlayer.h"
#include "support/SettingsWorld.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace varnhold::test {

using namespace Qt::StringLiterals;

class FakeWindow : public DownloadWindow
{
public:
    FakeWindow(const DownloadClient::Services& services, QStringList& log) : m_client(services), m_log(log) {}

    DownloadClient& client() override { return m_client; }
    void place(double left, double top) override { m_log.append(u"place %1 %2"_s.arg(left).arg(top)); }
    void loadSkin() override { m_log.append(u"skin"_s); }
    void show() override { m_log.append(u"show"_s); }

private:
    DownloadClient m_client;
    QStringList& m_log;
};

/// The report of a routine whose third label has no blank.
inline QString reportText(int number, const QString& description)
{
    return u"Err Number:\t%1\r\nErr Source:\tVarnhold\r\nErr Description:\t%2\r\n"_s.arg(number).arg(
        description);
}

/// A planner over fakes: three rows, downloads into "/dl", no limit that matters.
class PlannerWorld : public SettingsWorld, public DownloadHost
{
public:
    PlannerWorld()
    {
        settings.setSaveDir(u"/dl"_s);
        settings.setDownloadMax(5);
        settings.setChecked(Check::UseDLD, true);
        settings.setChecked(Check::SoundsClick, true);
        settings.setSound(1, {u"menu"_s, u"/menu.wav"_s});
        for (const QString& name : {u"a.pkg"_s, u"b.pkg"_s, u"c.pkg"_s}) {
            list.addRow(u"01.00"_s);
            list.setSubItem(list.count(), UpdateList::Url, u"http://host/"_s + name);
        }
    }

    DownloadWindow& makeWindow() override
    {
        windows.push_back(std::make_unique<FakeWindow>(
            DownloadClient::Services{sockets, files, clock, pump, boxes, u"Title"_s}, log));
        return *windows.back();
    }
    void drop(DownloadWindow& window) override
    {
        EXPECT_EQ(&window, windows.back().get());
        windows.pop_back();
    }
    void showCount(int count) override { shownCount = count; }
    [[nodiscard]] double mainLeft() const override { return 1000; }
    [[nodiscard]] double mainTop() const override { return 2000; }
    [[nodiscard]] QString gameIdText() const override { return u"BLUS30443"_s; }
    [[nodiscard]] QString info() const override { return u"Game"_s; }
    [[nodiscard]] int selectedRow() const override { return selected; }
    [[nodiscard]] QStringList filesInUse() const override { return inUse; }

    const DownloadLabels& labels() { return windows.back()->client().labels(); }
    QString cascade()
    {
        return QStringList(planner.downloadSlots().lstFrm.begin(), planner.downloadSlots().lstFrm.end())
            .join(u' ');
    }
    void unload(std::size_t index)
    {
        planner.windowUnloaded(windows.at(index)->client());
        windows.erase(windows.begin() + static_cast<std::ptrdiff_t>(index));
    }
    void expectLimitBox() { boxes.expect(u"Download Limit Reached\r\nPlease Wait"_s, u"Limit Reached"_s); }

    UpdateList list;
    FakeDownloadFiles files;
    FakeFileDialogs dialogs;
    FakeMessageBoxes boxes;
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakeSocketMaker sockets;
    FakeClock clock;
    FakePump pump;
    QStringList log;
    std::vector<std::unique_ptr<FakeWindow>> windows;
    int shownCount = -1;
    int selected = 1;
    QStringList inUse;
    DownloadPlanner planner{{state, settings, list, *this, files, dialogs, boxes, sounds, u"Title"_s}};
};

} // namespace varnhold::test
