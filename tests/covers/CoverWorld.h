#pragma once

#include "covers/CoverFetch.h"
#include "covers/CoverFolder.h"
#include "covers/CoverServers.h"
#include "state/Sounds.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakePump.h"
#include "support/FakeSoundPlayer.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"

#include <gtest/gtest.h>

namespace varnhold::test {

/// A program folder with settings and a cover folder, and a main window that keeps what it is told.
class CoverWorld : public testing::Test, public SettingsWorld, public CoverFetchView
{
protected:
    CoverWorld() { root.makeFolder(QStringLiteral("covers")); }

    void setFolder() { settings.unwrittenValues().covers.tag = root.path(QStringLiteral("covers")); }

    [[nodiscard]] QString selectedGameText() const override { return selected; }
    void setStatus(const QString& text) override { statuses.append(text); }
    void showBusy(bool isBusy) override { busy += isBusy ? 1 : -1; }
    void showCover(const QString& path) override { shown.append(path); }

    CoverFolder folder{settings};
    CoverServers servers{file};
    FakeMessageBoxes boxes;
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakePump pump;

    QString selected = QStringLiteral("BLUS30443");
    QStringList statuses;
    QStringList shown;
    int busy = 0;
};

} // namespace varnhold::test
