#include "tools/FolderRenamer.h"

#include "platform/FileDialogs.h"
#include "platform/Folders.h"
#include "platform/MessagePump.h"
#include "platform/RecycleFile.h"
#include "platform/Shell.h"
#include "state/ErrorReport.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QScopedValueRollback>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// The busy pointer for as long as this lives.
class Busy
{
public:
    explicit Busy(const std::function<void(bool)>& set) : m_set(set) { tell(true); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { tell(false); }

private:
    void tell(bool busy)
    {
        if (m_set)
            m_set(busy);
    }
    const std::function<void(bool)>& m_set;
};

} // namespace

FolderRenamer::FolderRenamer(Services services) : m_services(std::move(services)) {}

QString FolderRenamer::disclaimer()
{
    const QString stars(60, u'*');
    const QStringList lines{
        stars,
        u"\tInstructions"_s,
        {},
        u"C Drive is disabled for your own protection. Permanently!"_s,
        u"You must agree that you are doing this at your own risk."_s,
        u"I bear no responsibility for any damage caused 'BY YOU' upon clicking the Process or ReName "
        u"buttons."_s,
        {},
        u"\tDISCLAIMER"_s,
        u"This processes Unwanted strings From Directory path"_s,
        u"Fill in any unwanted strings in Settings - Options - Unwanted"_s,
        u"Separate with commas."_s,
        u"Load Directory Path"_s,
        u"Hit process"_s,
    };
    return lines.join(u'\n');
}

void FolderRenamer::btnLoad_Click()
{
    if (m_scans)
        return;
    m_services.sounds.play(Sound::Click);
    const QString& saveDir = m_services.settings.saveDir().tag;
    const QString chosen = m_services.dialogs.chooseFolder(
        u"Select Base Folder"_s, saveDir.isEmpty() ? m_services.paths.root : saveDir);
    if (!chosen.isEmpty())
        load(chosen, u"One Moment Please!"_s);
}

void FolderRenamer::btnLoad_RightClick()
{
    if (m_scans)
        return;
    m_services.sounds.play(Sound::Menu);
    if (!m_base.isEmpty())
        load(m_base, u"One Moment Please!"_s);
}

void FolderRenamer::load(const QString& base, const QString& title)
{
    if (refuses(base))
        return;
    m_panel = base;
    m_base = base;
    scan(title);
}

bool FolderRenamer::refuses(const QString& path)
{
    if (!isGuarded(path))
        return false;
    m_services.boxes.show({u"Err Source:\tC Drive\r\nErr Description:\tDisabled Drive letter"_s,
                           u"ErrorException"_s, BoxIcon::Critical, BoxButtons::Ok});
    return true;
}

void FolderRenamer::scan(const QString& title)
{
    const QScopedValueRollback guard(m_scans, true);
    m_abandoned = false;
    m_to.setStringList({});
    m_hits.setStringList({});
    m_hitRows.clear();
    m_title = title;
    say();
    int counter = 0;
    {
        const Busy busy(m_services.setBusy);
        if (!m_services.pump.pump() || m_abandoned)
            return;
        QStringList rows;
        m_unusable.clear();
        // A base that is gone or closed to us holds nothing, as the old lister showed it.
        silently([&] {
            for (const FolderEntry& entry : subfolders(m_base)) {
                rows.append(entry.path);
                if (!entry.isText)
                    m_unusable.append(entry.path);
                ++counter;
            }
        });
        m_from.setStringList(rows);
    }
    m_title = u"Found - %1 Directories"_s.arg(counter);
    if (m_searching)
        findHits();
    say();
}

void FolderRenamer::btnProcess_Click()
{
    if (m_scans)
        return;
    m_to.setStringList({});
    m_count.clear();
    m_buffer.setStringList({});
    say();
    if (m_agreed)
        process();
}

void FolderRenamer::process()
{
    const Busy busy(m_services.setBusy);
    const QStringList rows = (m_searching ? m_hits : m_from).stringList();
    const NameCleaning cleaning = NameCleaning::from(m_services.settings.unwantedStrings(),
                                                     m_services.settings.isChecked(Check::Double));
    QStringList done;
    QString current;
    bool ranThrough = true;
    try {
        for (const QString& from : rows) {
            current = from;
            if (m_unusable.contains(from))
                continue;
            const QString to = cleanedPath(from, cleaning);
            if (refuses(to)) {
                ranThrough = false;
                break;
            }
            requireFree(from);
            renameFolder(from, to);
            done.append(to);
        }
    } catch (const RunTimeError& error) {
        ranThrough = false;
        report(error, current);
    }
    (m_searching ? m_buffer : m_to).setStringList(done);
    if (!done.isEmpty()) {
        m_panel = done.constLast();
        m_count = QString::number(done.size());
    }
    if (ranThrough) {
        m_from.setStringList({});
        if (m_searching) {
            m_hits.setStringList({});
            m_hitRows.clear();
        }
        m_title = u"Processed - %1 Directories"_s.arg(done.size());
    }
    say();
}

void FolderRenamer::requireFree(const QString& folder) const
{
    if (m_services.isInUse && m_services.isInUse(folder))
        throw RunTimeError(errors::pathFileAccess);
}

void FolderRenamer::btnReName_Click()
{
    if (m_scans)
        return;
    m_services.sounds.play(Sound::Click);
    if (m_base.isEmpty() || refuses(m_base) || refuses(m_manualTag) || refuses(m_manualText))
        return;
    try {
        requireFree(m_manualTag);
        renameFolder(m_manualTag, m_manualText);
    } catch (const RunTimeError& error) {
        report(error, m_manualTag);
        return;
    }
    m_panel = m_base;
    scan(u"Loading: One Moment Please!"_s);
}

void FolderRenamer::btnSearch_Click()
{
    m_searching = true;
    findHits();
    say();
}

void FolderRenamer::btnCancel_Click()
{
    m_searching = false;
    m_buffer.setStringList({});
    say();
}

void FolderRenamer::txtSearch_Change(const QString& text)
{
    m_search = text;
    findHits();
}

void FolderRenamer::findHits()
{
    const QString wanted = m_search.toLower();
    const QStringList rows = m_from.stringList();
    QStringList hits;
    m_hitRows.clear();
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (rows.at(row).toLower().contains(wanted)) {
            hits.append(rows.at(row));
            m_hitRows.push_back(static_cast<int>(row));
        }
    }
    m_hits.setStringList(hits);
    Q_EMIT hitsChanged();
}

int FolderRenamer::folderOfHit(int row) const
{
    return row < 0 || row >= static_cast<int>(m_hitRows.size()) ? -1
                                                                : m_hitRows[static_cast<std::size_t>(row)];
}

void FolderRenamer::selectFolder(int row)
{
    if (row < 0 || row >= m_from.rowCount())
        return;
    m_manualText = m_from.stringList().at(row);
    m_manualTag = m_manualText;
    say();
}

void FolderRenamer::openMenu(bool overFrom, int row)
{
    m_overFrom = overFrom;
    const QStringListModel& list = overFrom ? m_from : m_to;
    m_openPath = row < 0 ? QString() : list.index(row).data().toString();
    m_recyclePath = overFrom ? m_openPath : QString();
}

QString FolderRenamer::openCaption() const
{
    return m_openPath.isEmpty() ? u"Open: - [ ]"_s : u"Open: "_s + m_openPath;
}

QString FolderRenamer::recycleCaption() const
{
    if (!m_overFrom)
        return {};
    return m_recyclePath.isEmpty() ? u"Recycle"_s : u"Recycle: "_s + m_recyclePath;
}

void FolderRenamer::mnuOpenDir_Click()
{
    if (!m_openPath.isEmpty())
        m_services.shell.open(m_openPath);
}

void FolderRenamer::mnuRecycle_Click()
{
    const QString path = m_recyclePath;
    if (path.isEmpty())
        return;
    const BoxAnswer answer =
        m_services.boxes.show({u"Are you sure you want to send\r\n'"_s + path + u"'\r\nto the Recycle Bin?"_s,
                               m_services.applicationTitle, BoxIcon::Question, BoxButtons::YesNo});
    if (answer != BoxAnswer::Yes)
        return;
    try {
        requireFree(path);
        RecycleFile(m_services.trash, path);
    } catch (const RunTimeError& error) {
        report(error, path);
        return;
    }
    removeRow(path);
}

void FolderRenamer::removeRow(const QString& path)
{
    QStringList rows = m_from.stringList();
    const qsizetype row = rows.indexOf(path);
    if (row < 0)
        return;
    m_from.removeRow(static_cast<int>(row));
    // The rows kept for the hits have moved.
    if (m_searching)
        findHits();
}

QString FolderRenamer::toolTip(const QString& path) const
{
    return m_unusable.contains(path)
               ? tr("%1\nThis name is no text that the program can read; it is passed over.").arg(path)
               : path;
}

void FolderRenamer::report(const RunTimeError& error, const QString& file)
{
    reportError(m_services.boxes, error, DescriptionLabel::WithoutBlank, file);
}

void FolderRenamer::say()
{
    Q_EMIT changed();
}

} // namespace varnhold
