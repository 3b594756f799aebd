#pragma once

#include <QString>

#include <functional>

namespace varnhold {

class MessageBoxes;
class Settings;
class SharedDatabase;

/// Copies entries of PS3Games into PS3Personal. Failures are reported; the connection then stays open, but
/// for the update of an entry that is there, which closes it.
class Transfer
{
public:
    struct Services
    {
        SharedDatabase& database;
        const Settings& settings;
        MessageBoxes& boxes;
        std::function<void(bool)> showBusy; ///< over the window in front
        std::function<void()> reload;       ///< empties what the main window shows, then loads its list anew
    };

    explicit Transfer(Services services);

    /// The game that is selected in the main window's list of `rows` games. Nothing happens while the current
    /// table is the personal one.
    void mnuCopyTo(const QString& gameId, int rows);
    /// The game that is selected in a search's result. `searchTable` is the table that lblDB(0) names, which
    /// need not be the one that was searched; nothing happens while it is the personal one.
    void mnuCpy(const QString& gameId, const QString& name, int rows, const QString& searchTable);

private:
    struct Wish
    {
        QString gameId;
        QString name;
        QString label;    ///< how the question names the entry
        QString oldLabel; ///< how it does when the entry is there already
        bool offersReload;
    };

    void run(const Wish& wish);
    void tell(const Wish& wish, const QString& title, const QString& gameId, const QString& name);

    Services m_services;
};

} // namespace varnhold
