#pragma once

#include <QString>

#include <functional>

namespace varnhold {

class DownloadFiles;
class DownloadHost;
class MessageBoxes;
class Settings;
class Shell;
class Sounds;
class Trash;
class UpdateList;

/// What the update list's menu does with packages on disk: mark one as downloaded, recycle it, open its
/// folder. Questions pump events, so a row is found again afterwards by its url (by its text where it has
/// none); one that is gone by then keeps its icon and its place.
class PackageActions
{
public:
    struct Services
    {
        const Settings& settings;
        UpdateList& list;
        DownloadHost& host;
        DownloadFiles& files;
        Trash& trash;
        MessageBoxes& boxes;
        Shell& shell;
        Sounds& sounds;
        QString applicationTitle;
    };

    explicit PackageActions(Services services);

    void mnuMarkDL_Click();
    void mnuKill_Click();
    void mnuExplore_Click();
    void mnuOpenDir_Click();

private:
    struct Row;

    [[nodiscard]] Row selectedRow() const;
    [[nodiscard]] QString folder() const;
    void mark();
    void kill();
    void killPackage(const Row& row, const QString& folder);
    void killNamedFile(const Row& row, const QString& folder);
    void askForMarker(const Row& row, const QString& path, const QString& marker);
    [[nodiscard]] bool mayRecycle(const QString& name);
    [[nodiscard]] bool ask(const QString& question);
    void removeFile(const QString& path);
    void setIcon(const Row& row, const QString& key);
    void openFolder(const std::function<void(const QString&)>& verb);

    Services m_services;
};

} // namespace varnhold
