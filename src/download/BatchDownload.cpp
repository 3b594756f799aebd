#include "download/BatchDownload.h"

#include "download/DownloadFile.h"
#include "download/DownloadHost.h"
#include "download/DownloadPlanner.h"
#include "download/NumericValue.h"
#include "lookup/MarkRows.h"
#include "lookup/PackageNames.h"
#include "lookup/UpdateList.h"
#include "platform/FileDialogs.h"
#include "state/ApplicationState.h"
#include "state/ErrorReport.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QScopedValueRollback>

namespace varnhold {

using namespace Qt::StringLiterals;

BatchDownload::BatchDownload(const Services& services) : m_services(services) {}

void BatchDownload::mnuLVCheckBxs_Click()
{
    m_services.sounds.play(Sound::Menu);
    m_checkBoxes = !m_checkBoxes;
    m_services.list.setCheckBoxes(m_checkBoxes);
    if (m_checkBoxes)
        mnuLVSelectNone_Click(); // going off keeps the checks
    m_services.host.showCheckBoxEntries(m_checkBoxes);
    m_services.host.fitColumns();
}

void BatchDownload::mnuLVSelectAll_Click()
{
    checkAll(true);
}

void BatchDownload::mnuLVSelectNone_Click()
{
    checkAll(false);
}

void BatchDownload::checkAll(bool checked)
{
    const int count = m_services.list.count();
    for (int row = 1; row <= count; ++row) {
        m_services.state.LoopIndex = static_cast<qint16>(row);
        if (m_services.list.isChecked(row) != checked)
            m_services.list.setChecked(row, checked);
    }
}

void BatchDownload::mnuChkDLoad_Click()
{
    m_services.sounds.play(Sound::Menu);
    reporting(m_services.boxes, DescriptionLabel::WithoutBlank, [this] { start(); });
}

void BatchDownload::start()
{
    const QString folder = chooseFolder();
    if (folder.isEmpty())
        return;
    m_services.state.DLFolder = folder;
    m_services.host.showStatus(folder);
    m_services.host.lockLists(true);
    m_services.host.hideSearch();
    m_running = true;
    m_services.host.runTimer(true);
}

/// Unlike a single download, a batch asks where the options name no folder.
QString BatchDownload::chooseFolder()
{
    const Settings& settings = m_services.settings;
    if (settings.saveDir().tag.isEmpty() || !settings.isChecked(Check::UseDLD))
        return m_services.dialogs.chooseFolder(u"Select Download Location"_s, m_services.paths.root);
    const QString folder = titleFolder(settings, m_services.windows.gameIdText(), m_services.windows.info());
    if (settings.isChecked(Check::CGNFolder))
        m_services.files.makeFolder(folder);
    return folder;
}

void BatchDownload::tmr_Auto_Timer()
{
    if (m_ticking || !m_running)
        return;
    const QScopedValueRollback guard(m_ticking, true);
    // Rows may vanish while a window starts; that ends this tick, and the next one starts over.
    silently([this] { tick(); });
}

void BatchDownload::tick()
{
    const int count = m_services.list.count();
    for (int row = 1; row <= count; ++row) {
        if (!m_services.list.isChecked(row))
            continue;
        if (limitReached()) {
            m_services.state.DLCount =
                static_cast<qint16>(numericValue(m_services.settings.downloadMaxText()));
            return;
        }
        if (!startRow(row))
            return;
    }
    // A count that drifted never gets here, and the lists stay locked until it does; meant.
    if (m_services.state.DLCount == 0)
        end();
}

bool BatchDownload::limitReached() const
{
    return numericValue(m_services.settings.downloadMaxText()) <= m_services.state.DLCount;
}

/// False when the tick cannot go on: the program ends, or the list was filled anew meanwhile.
bool BatchDownload::startRow(int row)
{
    UpdateList& list = m_services.list;
    const QString url = list.subItem(row, UpdateList::Url);
    m_services.state.IniValue = url;
    m_services.planner.Execute_Multiple(url, fileNameOf(url));
    if (m_services.host.isEnding() || list.subItem(row, UpdateList::Url) != url)
        return false;
    // Also when the row was refused; meant.
    list.setChecked(row, false);
    m_services.host.bringIntoView(row);
    list.setIcon(row, u"pkg-dl"_s);
    return true;
}

void BatchDownload::end()
{
    m_running = false;
    m_services.host.runTimer(false);
    m_services.host.lockLists(false);
    Mark_Rows(m_services.list, m_services.settings, m_services.state, m_services.windows.gameIdText(),
              m_services.windows.info());
}

} // namespace varnhold
