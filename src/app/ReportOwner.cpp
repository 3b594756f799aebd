#include "app/ReportOwner.h"

#include "app/AppearanceOwner.h"
#include "app/main/PackageIcons.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "appearance/SkinPage.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "download/DownloadPlanner.h"
#include "gamedb/LinkDelete.h"
#include "lookup/Lookup.h"
#include "lookup/UpdateList.h"
#include "platform/Clipboard.h"
#include "platform/ShapedWindow.h"
#include "state/ErrorReport.h"
#include "state/Settings.h"
#include "state/Sounds.h"
#include "tools/ReportText.h"

#include <QAction>
#include <QCoreApplication>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

ReportOwner::ReportOwner(const Common& common, Lookup& lookup, AppearanceOwner& appearance,
                         DownloadPlanner& planner, SharedDatabase& database)
    : m_common(common), m_lookup(lookup), m_appearance(appearance), m_database(database)
{
    bindCommands(planner);
    connect(&appearance, &AppearanceOwner::opacityMoved, this, [this](OpacityOf which, int value) {
        if (m_window && which == OpacityOf::Main)
            SetOpacity(value, *m_window);
    });
}

ReportOwner::~ReportOwner() = default;

void ReportOwner::bindCommands(DownloadPlanner& planner)
{
    MenuCommands& commands = m_common.commands;
    commands.bind("mnuLVListText", [this] { mnuLVListText_Click(); });
    commands.bind("mnuLVCopyLink", [this] { mnuLVCopyLink_Click(); });
    const auto bind = [this, &commands](const char* entry, auto run) {
        commands.bind(entry, [this, run] {
            if (m_window)
                run(*m_window);
        });
    };
    using Edit = frmLstTxt::Edit;
    const std::pair<const char*, Edit> edits[] = {
        {"mnuLTUndo", Edit::Undo},   {"mnuLTCut", Edit::Cut},       {"mnuLTCopy", Edit::Copy},
        {"mnuLTPaste", Edit::Paste}, {"mnuLTDelete", Edit::Delete}, {"mnuLTSelectAll", Edit::SelectAll}};
    for (const auto& [entry, edit] : edits)
        bind(entry, [command = edit](frmLstTxt& window) { window.edit(command); });
    bind("mnuLTTools", [](frmLstTxt& window) { window.mnuLTTools_Click(); });
    bind("mnuLstVwRS", [](frmLstTxt& window) { window.mnuLstVwRS_Click(); });
    bind("mnuLstVwCpy", [](frmLstTxt& window) { window.mnuLstVwCpy_Click(); });
    bind("mnuLinkDel", [](frmLstTxt& window) { window.mnuLinkDel_Click(); });
    bind("mnuLstVwDL", [&planner](const frmLstTxt& window) {
        if (const LinkRow* const selected = window.selectedLink()) {
            const LinkRow link = *selected;
            planner.mnuLstVwDL_Click(link[LinkRow::Url], link[LinkRow::GameId], link[LinkRow::Name]);
        }
    });
}

void ReportOwner::mnuLVListText_Click()
{
    m_common.sounds.play(Sound::Menu);
    const ReportTitle title = this->title();
    made().showReport(title,
                      reportText(ReportLines(m_common.settings), title.gameId, title.name, m_common.list));
}

void ReportOwner::showNotes(const QString& rtf, ColorValue fore, ColorValue ground)
{
    made().showNotes(title(), rtf, fore, ground);
}

void ReportOwner::showLinks(std::vector<LinkRow> rows, const QString& heading)
{
    made().showLinks(std::move(rows), heading);
}

void ReportOwner::mnuLVCopyLink_Click()
{
    const int row = m_common.main.selectedUpdateRow();
    if (row < 1)
        return;
    reporting(m_common.world.boxes, DescriptionLabel::WithBlank,
              [&] { m_common.world.clipboard.setText(m_common.list.subItem(row, UpdateList::Url)); });
}

void ReportOwner::unload()
{
    if (m_window)
        m_window->unload();
}

ReportTitle ReportOwner::title() const
{
    return {m_common.main.gameIdText(), m_common.main.info()};
}

frmLstTxt& ReportOwner::made()
{
    if (!m_window) {
        const World& world = m_common.world;
        const frmMain& main = m_common.main;
        ReportHost& host = *this;
        m_window = std::make_unique<frmLstTxt>(
            frmLstTxt::Services{.paths = m_common.paths,
                                .file = m_common.file,
                                .boxes = world.boxes,
                                .sounds = m_common.sounds,
                                .shell = world.shell,
                                .clipboard = world.clipboard,
                                .screen = world.screen,
                                .applicationTitle = QCoreApplication::applicationName(),
                                .pictureOf = packageIcon},
            host, WindowPlace{main.x(), main.y(), main.width(), main.height()});
        SetOpacity(m_common.settings.opacity(OpacityOf::Main), *m_window);
    }
    return *m_window;
}

void ReportOwner::loadTitle(const QString& gameId, const QString& name)
{
    frmMain& main = m_common.main;
    main.setGameIdText(gameId);
    m_lookup.btnFetch_Click();
    MorphListBox& games = main.games();
    for (int row = 0; row < games.ListCount(); ++row) {
        if (games.List(row) != gameId)
            continue;
        games.setListIndex(row);
        games.DisplayFrom(row);
        break;
    }
    main.setInfo(name);
}

void ReportOwner::deleteLink(const LinkRow& link, const std::function<void()>& removeRow)
{
    varnhold::mnuLinkDel({link[LinkRow::GameId], link[LinkRow::Name], link[LinkRow::Url]}, m_database,
                         m_common.world.boxes, removeRow);
}

void ReportOwner::bringMainToFront()
{
    frmMain& main = m_common.main;
    main.setWindowState(main.windowState() & ~Qt::WindowMinimized);
    main.show();
    main.raise();
    main.activateWindow();
}

void ReportOwner::openReportMenu(const QPoint& globalPosition)
{
    m_common.menu.popUp("mnuLstTxt", globalPosition);
}

void ReportOwner::openLinksMenu(const QPoint& globalPosition)
{
    m_common.menu.popUp("mnulstView", globalPosition);
}

void ReportOwner::markTools(bool shown)
{
    m_common.menu.entry(u"mnuLTTools"_s).setChecked(shown);
}

std::array<ColorValue, 2> ReportOwner::balloonColors() const
{
    const auto& colors = m_appearance.page().Shape_Color;
    return {colors[SkinPage::Fore], colors[SkinPage::Back]};
}

/// It is still in a click of its own.
void ReportOwner::unloaded()
{
    m_window.release()->deleteLater();
}

} // namespace varnhold
