#pragma once

#include "download/DownloadHost.h"
#include "download/DownloadSlots.h"

#include <QString>

#include <optional>

namespace varnhold {

class DownloadFiles;
class FileDialogs;
class MessageBoxes;
class RunTimeError;
class Settings;
class Sounds;
class UpdateList;
struct ApplicationState;

/// From a request to a running download window: limit, target, overwrite questions, slot, place. One routine
/// with the routes' differences as data (see DownloadPlanner.cpp).
class DownloadPlanner
{
public:
    struct Services
    {
        ApplicationState& state;
        const Settings& settings;
        UpdateList& list;
        DownloadHost& host;
        DownloadFiles& files;
        FileDialogs& dialogs;
        MessageBoxes& boxes;
        Sounds& sounds;
        QString applicationTitle;
    };

    explicit DownloadPlanner(Services services);

    void mnuDLoad_Click();                ///< the update list's menu; the selected row
    void ListView1_DblClick();            ///< the selected row, through the save dialog
    void DownloadUrl(const QString& url); ///< a dropped address
    /// The link list of the report window: names come from its row.
    void mnuLstVwDL_Click(const QString& url, const QString& gameId, const QString& name);
    void Execute_Multiple(const QString& url, const QString& fileName); ///< the batch

    /// End of a window: row unchecked and its icon set, count lowered and shown, slot freed.
    void windowUnloaded(const DownloadClient& client);

    [[nodiscard]] DownloadSlots& downloadSlots() { return m_slots; }

private:
    struct Route;
    struct Request;
    struct Target;
    class Prepared;

    void plan(const Route& route, Request request);
    void walk(const Route& route, Request& request);
    [[nodiscard]] Request fromMainWindow(const QString& url) const;
    [[nodiscard]] bool readSelectedRow(const Route& route, Request& request) const;
    [[nodiscard]] int selectedRow() const;
    [[nodiscard]] bool limitAllows(const Route& route);
    [[nodiscard]] QString folderFor(const Route& route, const Request& request);
    [[nodiscard]] std::optional<Target> batchTarget(const Route& route, const Request& request,
                                                    const QString& folder);
    [[nodiscard]] std::optional<Target> directTarget(const Request& request, const QString& folder);
    [[nodiscard]] std::optional<Target> dialogTarget(const Route& route, const Request& request,
                                                     const QString& folder);
    void start(const Route& route, Prepared& window);
    void setRowIcon();
    void report(const RunTimeError& error);

    Services m_services;
    DownloadSlots m_slots;
};

} // namespace varnhold
