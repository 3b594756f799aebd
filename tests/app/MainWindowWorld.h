#pragma once

#include "AppWorld.h"

#include "app/main/UpdateListView.h"
#include "controls/MorphListBox/MorphListBox.h"

#include <QLabel>

namespace varnhold::test {

/// The main window, shown, with its bars in the middle of their columns.
struct MainWindowWorld : AppWorld
{
    MainWindowWorld()
    {
        window.setBarLeftTop(1800);
        window.setBarMainTop(1800);
        window.Splitbar_Left();
        window.Splitbar_Main();
        window.show();
    }

    void fillGames()
    {
        for (const char* id : {"BLUS30443 Ashgrove", "BCES00509", "blus12345x"})
            window.games().AddItem(QLatin1StringView(id));
        for (const char* title : {"Ashgrove: Circuit", "", "Third"})
            window.titles().addItem(QLatin1StringView(title));
    }
    /// Somewhere inside a row of the game list.
    [[nodiscard]] QPoint gameRow(int row)
    {
        MorphListBox& games = window.games();
        for (int y = 0; y < games.height(); ++y) {
            if (games.MouseOverIndex(y) == row)
                return {10, y + 2};
        }
        ADD_FAILURE() << "row not shown";
        return {};
    }
    [[nodiscard]] QString text(const char* name) { return child<QLabel>(window, name).text(); }
    void addUpdate(const QString& version, const QString& url)
    {
        list.addRow(version);
        list.setSubItem(list.count(), UpdateList::Version, QStringLiteral("03.4100"));
        if (!url.isEmpty())
            list.setSubItem(list.count(), UpdateList::Url, url);
    }
    [[nodiscard]] QPoint updateRow(int row)
    {
        auto& view = child<UpdateListView>(window, "ListView1");
        return view.visualRect(list.index(row - 1, 0)).center();
    }
    /// The three views of the right column, as one number of those that show.
    [[nodiscard]] int viewsShown()
    {
        int shown = 0;
        for (const char* name : {"ListView1", "barMain", "txtGameNotes"})
            shown += int(child(window, name).isVisible());
        return shown;
    }

    frmMain window{{state, settings, list, boxes, sounds, screen, root.paths()}};
};

} // namespace varnhold::test
