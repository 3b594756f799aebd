#pragma once

namespace varnhold {

class GameListView;
class MessageBoxes;
class RunTimeError;
class Settings;
class SharedDatabase;
class Sounds;
struct ApplicationState;

/// Fills the game list from the current table: ids into MorphListBox1, names into List1, row by row.
class GameList
{
public:
    struct Services
    {
        SharedDatabase& database;
        const ApplicationState& state; ///< SkinPath: where the icons are
        const Settings& settings;
        GameListView& view;
        Sounds& sounds;
        MessageBoxes& boxes;
    };

    explicit GameList(const Services& services);

    /// The first load. Renames the three older tables. Tells failures on the splash and the settings page
    /// and never throws.
    void loadGameListAtStartup();
    /// Appends to what the lists hold: emptying them is the caller's. Failures are reported; the connection
    /// then stays open, which is meant.
    void reloadGameList();
    /// What follows the choice of another database: empties what shows the old one, then reloadGameList with
    /// the older tables' renames before it and the thanks after it.
    void loadChosenDatabase();
    void Load_LBIcons();
    void redrawIcons(); ///< where they show
    /// What follows a load: icons where the settings want them, else none, and with `selectFirst` the first
    /// row.
    void showIcons(bool selectFirst);
    void clearPreview();

    void CmdRefresh_Click();
    void cmdClear_Click();
    void mnuLBIcons_Click();

private:
    void renameOldTables();
    void reload(bool renaming);
    void walk(bool withProgress);
    void showCount();
    void thank();
    void tellStartFailure(const RunTimeError& error);

    Services m_services;
};

} // namespace varnhold
