#include "download/PackageActions.h"

#include "download/DownloadFile.h"
#include "download/DownloadHost.h"
#include "lookup/MarkRows.h"
#include "lookup/PackageNames.h"
#include "lookup/UpdateList.h"
#include "platform/Files.h"
#include "platform/RecycleFile.h"
#include "platform/Shell.h"
#include "state/ErrorReport.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

/// A row as it was when the command began.
struct PackageActions::Row
{
    QString url;
    QString text;

    /// Where it stands now; 0 when it is gone.
    [[nodiscard]] int find(const UpdateList& list) const
    {
        if (!url.isEmpty())
            return list.findUrl(url);
        for (int row = 1; row <= list.count(); ++row) {
            if (list.subItem(row, UpdateList::Url).isEmpty() && list.text(row) == text)
                return row;
        }
        return 0;
    }
};

PackageActions::PackageActions(Services services) : m_services(std::move(services)) {}

void PackageActions::mnuMarkDL_Click()
{
    m_services.sounds.play(Sound::Menu);
    reporting(m_services.boxes, DescriptionLabel::WithoutBlank, [this] { mark(); });
}

void PackageActions::mnuKill_Click()
{
    m_services.sounds.play(Sound::Menu);
    reporting(m_services.boxes, DescriptionLabel::WithoutBlank, [this] { kill(); });
}

void PackageActions::mnuExplore_Click()
{
    openFolder([this](const QString& folder) { m_services.shell.explore(folder); });
}

void PackageActions::mnuOpenDir_Click()
{
    openFolder([this](const QString& folder) { m_services.shell.open(folder); });
}

PackageActions::Row PackageActions::selectedRow() const
{
    const int row = m_services.host.selectedRow();
    if (row == 0)
        throw RunTimeError(errors::objectNotSet);
    return {m_services.list.subItem(row, UpdateList::Url), m_services.list.text(row)};
}

QString PackageActions::folder() const
{
    return titleFolder(m_services.settings, m_services.host.gameIdText(), m_services.host.info());
}

void PackageActions::mark()
{
    const Row row = selectedRow();
    if (row.url.isEmpty())
        return;
    const QString target = folder();
    if (m_services.settings.isChecked(Check::UseDLD) && m_services.settings.isChecked(Check::CGNFolder))
        m_services.files.makeFolder(target);
    // In the whole path, folders included, and where the name has no ".pkg" it is the package itself that is
    // made or emptied; meant.
    m_services.files.createEmpty(markerOfPath(target + u'/' + fileNameOf(row.url)));
    setIcon(row, u"plus"_s);
}

void PackageActions::kill()
{
    const Row row = selectedRow();
    if (row.url.isEmpty())
        killNamedFile(row, folder());
    else
        killPackage(row, folder());
}

void PackageActions::killPackage(const Row& row, const QString& folder)
{
    const PackageNames names = packageNames(row.url);
    const QString package = folder + u'/' + names.package;
    const QString temporary = folder + u'/' + names.temporary;
    const QString marker = folder + u'/' + names.marker;
    if (m_services.files.exists(package)) {
        if (!mayRecycle(names.package))
            return;
        RecycleFile(m_services.trash, package);
        setIcon(row, u"plus"_s);
        askForMarker(row, marker, names.marker);
    } else if (m_services.files.exists(temporary)) {
        removeFile(temporary);
        setIcon(row, u"plus"_s);
        if (!m_services.files.exists(temporary))
            m_services.boxes.show({u"File Deleted successfully"_s, m_services.applicationTitle});
        askForMarker(row, marker, names.marker);
    } else if (m_services.files.exists(marker)) {
        removeFile(marker);
        setIcon(row, u"pkg"_s);
    }
}

/// A row without a url names a file of the user's in the folder. Its text comes from the document, so it must
/// not lead elsewhere.
void PackageActions::killNamedFile(const Row& row, const QString& folder)
{
    if (row.text.isEmpty() || row.text.contains(u'/') || row.text == u"." || row.text == u"..")
        return;
    // The user keeps that file, and may have named it in any case.
    const QString path = row.text == u"Notes" ? foldedFile(folder, u"notes.txt"_s) : folder + u'/' + row.text;
    if (!m_services.files.exists(path))
        return;
    m_services.sounds.play(Sound::Menu); // a second time; meant
    if (!mayRecycle(fileNameOf(path)))
        return;
    RecycleFile(m_services.trash, path);
    if (const int now = row.find(m_services.list); now != 0)
        m_services.list.removeRow(now);
}

/// Asked also when there is none; Yes then ends in the report. Meant.
void PackageActions::askForMarker(const Row& row, const QString& path, const QString& marker)
{
    if (!ask(u"Would you also like to Delete \r\n\r\n"_s + marker + u" ?"_s))
        return;
    removeFile(path);
    setIcon(row, u"pkg"_s);
}

bool PackageActions::mayRecycle(const QString& name)
{
    return ask(u"Are you sure you want to send\r\n'"_s + name + u"'\r\nto the Recycle Bin?"_s);
}

bool PackageActions::ask(const QString& question)
{
    return m_services.boxes.show({question, m_services.applicationTitle, BoxIcon::Question,
                                  BoxButtons::YesNo}) == BoxAnswer::Yes;
}

/// A file that a download writes cannot be deleted, or the download would end in nothing.
void PackageActions::removeFile(const QString& path)
{
    if (m_services.host.filesInUse().contains(path))
        throw RunTimeError(errors::permissionDenied);
    m_services.files.remove(path);
}

void PackageActions::setIcon(const Row& row, const QString& key)
{
    if (const int now = row.find(m_services.list); now != 0)
        m_services.list.setIcon(now, key);
}

void PackageActions::openFolder(const std::function<void(const QString&)>& verb)
{
    m_services.sounds.play(Sound::Menu);
    const Settings& settings = m_services.settings;
    if (settings.saveDir().tag.isEmpty() || !settings.isChecked(Check::UseDLD))
        return;
    // Without the title's folder it has the id behind it, where no download goes, and is mostly missing;
    // meant.
    const QString target = settings.isChecked(Check::CGNFolder)
                               ? folder()
                               : settings.saveDir().tag + u'/' + m_services.host.gameIdText();
    if (FolderExists(target))
        verb(target);
    else
        m_services.boxes.show({u"Folder does not exist"_s, m_services.applicationTitle});
}

} // namespace varnhold
