#include "lookup/MarkRows.h"

#include "lookup/PackageNames.h"
#include "lookup/UpdateList.h"
#include "platform/Files.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/SizeText.h"

#include <QFileInfo>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// The row's size text as it would be for the file on disk. Below 1 MiB and from 1000 MB on the two sides are
/// formatted differently and never agree: meant.
QString sizeTextOnDisk(const QString& path)
{
    return File_Size_Text(path) + u" ("_s + QString::number(QFileInfo(path).size()) + u" bytes)"_s;
}

void markRow(UpdateList& list, int row, const QString& folder, const QString& url)
{
    const PackageNames names = packageNames(url);
    const QString package = folder + u'/' + names.package;
    // Every mark needs the marker file, and most rows have none.
    if (!FileExists(folder + u'/' + names.marker))
        return;
    if (FileExists(package)) {
        if (!names.package.isEmpty())
            list.setIcon(row, sizeTextOnDisk(package) == list.subItem(row, UpdateList::Size) ? u"pkg-plus"_s
                                                                                             : u"pkg-red"_s);
    } else if (FileExists(folder + u'/' + names.temporary)) {
        list.setIcon(row, u"pkg-red"_s);
    } else {
        list.setIcon(row, u"plus"_s);
    }
}

} // namespace

QString titleFolder(const Settings& settings, const QString& gameId, const QString& name)
{
    if (!settings.isChecked(Check::UseDLD))
        return {};
    const QString& base = settings.saveDir().tag;
    if (!settings.isChecked(Check::CGNFolder))
        return base;
    return base + u'/' + titleFolderName(gameId, name);
}

QString titleFolderName(const QString& gameId, const QString& name)
{
    return gameId + u"-["_s + name + u']';
}

void Mark_Rows(UpdateList& list, const Settings& settings, ApplicationState& state, const QString& gameIdText,
               const QString& info)
{
    const QString folder = titleFolder(settings, gameIdText, info);
    const bool leadsElsewhere = !folder.isEmpty() && settings.isChecked(Check::CGNFolder) &&
                                !isOneName(titleFolderName(gameIdText, info));
    const bool folderMissing = !folder.isEmpty() && (leadsElsewhere || !FolderExists(folder));
    for (int row = 1; row <= list.count(); ++row) {
        state.IniValue = list.subItem(row, UpdateList::Url);
        if (folderMissing)
            return;
        markRow(list, row, folder, state.IniValue);
    }
}

} // namespace varnhold
