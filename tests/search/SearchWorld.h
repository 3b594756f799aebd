#pragma once

#include "gamedb/AnsweringBoxes.h"
#include "gamedb/FakeGameWindow.h"
#include "gamedb/GameList.h"
#include "gamedb/SharedDatabase.h"
#include "search/ResultList.h"
#include "search/SearchView.h"
#include "state/Sounds.h"
#include "support/FakeFileDialogs.h"
#include "support/FakeSoundPlayer.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"
#include "support/TestDatabase.h"

namespace varnhold::test {

/// The window as plain values.
class FakeSearchView : public SearchView
{
public:
    [[nodiscard]] SearchQuery query() const override { return wanted; }
    [[nodiscard]] ListFormat format() const override { return margins; }
    void showBusy(bool on) override { busy = on; }
    void enableSearch(bool enabled) override { searchEnabled = enabled; }
    void enableImport(bool enabled) override { importEnabled = enabled; }
    void showProgress(int /*maximum*/) override { bar = true; }
    void setProgress(int /*value*/) override {}
    void hideProgress() override { bar = false; }
    void selectRow(int row) override { selected = row; }
    void walkTo(int /*row*/) override {}
    [[nodiscard]] QString caption() const override { return title; }
    void setCaption(const QString& text) override { title = text; }
    void setImportCaption(const QString& text) override { importTitle = text; }
    void showFile(const QString& name, const QString& path) override { file = name + u'|' + path; }
    void focusImport() override { importFocused = true; }

    SearchQuery wanted{
        QStringLiteral("PS3Games"), QStringLiteral("GameName"), SearchQuery::Match::Any, false, {}};
    ListFormat margins;
    QString title;
    QString importTitle;
    QString file;
    int selected = -1;
    bool busy = false;
    bool bar = false;
    bool searchEnabled = true;
    bool importEnabled = true;
    bool importFocused = false;
};

class SearchWorld : public testing::Test, public SettingsWorld
{
protected:
    SearchWorld() { settings.setIdList({QStringLiteral("GameDB.mdb"), database.path()}); }

    /// "id|name" of each row.
    [[nodiscard]] QStringList listed() const
    {
        QStringList all;
        for (int row = 0; row < results.count(); ++row)
            all << results.id(row) + u'|' + results.name(row);
        return all;
    }

    TestDatabase database{root.path(QStringLiteral("GameDB.mdb"))};
    AnsweringBoxes boxes;
    FakeFileDialogs dialogs;
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakeGameWindow main;
    FakeSearchView view;
    ResultList results;
    SharedDatabase shared{settings, boxes};
    GameList games{{shared, state, settings, main, sounds, boxes}};
};

} // namespace varnhold::test
