#include "app/EditorOwner.h"

#include "app/AppearanceOwner.h"
#include "app/ChildPlace.h"
#include "app/DatabaseOwner.h"
#include "app/ReportOwner.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/SystemColors.h"
#include "covers/BitmapFile.h"
#include "gamedb/EntryDetails.h"
#include "platform/Shell.h"
#include "platform/Wayland.h"
#include "state/Sounds.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

struct NamedColor
{
    const char* entry;
    ColorValue color;
};

constexpr NamedColor colors[] = {
    {"mnuColorBlack", 0x000000},  {"mnuColorBlue", 0xFF0000},
    {"mnuColorCyan", 0xFFFF00},   {"mnuColorGray", systemcolors::grayText},
    {"mnuColorGreen", 0x00FF00},  {"mnuColorOrange", 0x0080FF},
    {"mnuColorPink", 0xC080FF},   {"mnuColorPurple", 0x800080},
    {"mnuColorRed", 0x0000FF},    {"mnuColorWhite", 0xFFFFFF},
    {"mnuColorYellow", 0x00FFFF},
};

} // namespace

EditorOwner::EditorOwner(const Common& common, DatabaseOwner& database, AppearanceOwner& appearance,
                         ReportOwner& report)
    : m_common(common),
      m_database(database),
      m_window({.state = common.state,
                .settings = common.settings,
                .sounds = common.sounds,
                .screen = common.world.screen,
                .boxes = common.world.boxes,
                .fonts = common.world.fonts,
                .colors = common.world.colors,
                .blankPicture = [&menu = common.menu] { return menu.imgBlank().pixmap(); },
                .place = [this] { place(); }}),
      m_editor({.database = database.database(),
                .settings = common.settings,
                .paths = common.paths,
                .boxes = common.world.boxes,
                .dialogs = common.world.dialogs,
                .sounds = common.sounds,
                .view = m_window,
                .host = *this,
                .title = QCoreApplication::applicationName()}),
      m_transfer({.database = database.database(),
                  .settings = common.settings,
                  .boxes = common.world.boxes,
                  .showBusy = [this](bool busy) { showBusy(busy); },
                  .reload = [&database] { database.gameList().CmdRefresh_Click(); }})
{
    m_window.setEditor(m_editor);
    appearance.add(m_window);
    connectMainWindow();
    connectWindow();
    bindNotesMenu();
    connect(&common.main, &frmMain::viewRequested, this,
            [this, &report, &appearance] { viewNotes(report, appearance.page()); });
}

void EditorOwner::connectMainWindow()
{
    const frmMain& main = m_common.main;
    connect(&main, &frmMain::addRequested, this, [this] { m_editor.openToAdd(); });
    connect(&main, &frmMain::editRequested, this, [this] { m_editor.openToEdit(); });
    connect(&main, &frmMain::newRecordRequested, this, [this] { m_editor.CmdNewRecord_Click(); });
    const auto remove = [this] {
        deleteEntry(m_database.database(), m_common.settings, m_common.world.boxes, *this);
    };
    connect(&main, &frmMain::deleteRequested, this, remove);
    MenuCommands& commands = m_common.commands;
    commands.bind("mnuLBAdd", [this] { m_editor.mnuLBAdd_Click(); });
    commands.bind("mnuLBxDelete", remove);
    commands.bind("mnuCopyTo", [this] { m_transfer.mnuCopyTo(selectedGameText(), gameCount()); });
}

void EditorOwner::connectWindow()
{
    frmMenu& menu = m_common.menu;
    connect(&m_window, &frmDB::mnuRTXTWanted, &menu,
            [&menu](const QPoint& place) { menu.popUp("mnuRTXT", place); });
    connect(&m_window, &frmDB::mnuFormatWanted, &menu, [this, &menu](const QPoint& place) {
        m_window.focusNotes();
        menu.entry(u"mnuFont"_s).setText(m_window.selectedFont().replace(u'&', u"&&"_s));
        menu.popUp("mnuFormat", place);
    });
    connect(&m_window, &frmDB::pictureClicked, this, &EditorOwner::openCover);
}

void EditorOwner::bindNotesMenu()
{
    MenuCommands& commands = m_common.commands;
    const auto bind = [&](const char* entry, void (frmDB::*routine)()) {
        commands.bind(entry, [this, routine] { (m_window.*routine)(); });
    };
    bind("mnuUndo", &frmDB::mnuUndo_Click);
    bind("mnuCut", &frmDB::mnuCut_Click);
    bind("mnuCopy", &frmDB::mnuCopy_Click);
    bind("mnuPaste", &frmDB::mnuPaste_Click);
    bind("mnuDelete", &frmDB::mnuDelete_Click);
    bind("mnuSelectAll", &frmDB::mnuSelectAll_Click);
    bind("mnuFont", &frmDB::mnuFont_Click);
    bind("mnuColor", &frmDB::mnuColor_Click);
    for (const NamedColor& each : colors)
        commands.bind(each.entry, [this, color = GetLngColor(each.color)] { m_window.applyColor(color); });
}

void EditorOwner::place()
{
    if (!onWayland())
        m_window.move(
            childPlace(m_common.main.geometry(), m_window.size(), m_common.world.screen.workArea()));
}

/// That of the main window's game, whichever one the editor holds: this is meant.
void EditorOwner::openCover()
{
    m_common.sounds.play(Sound::Click);
    const QString cover = m_common.main.covers().find(gameIdText());
    if (!cover.isEmpty())
        m_common.world.shell.open(cover);
}

void EditorOwner::viewNotes(ReportOwner& report, const SkinPage& skin)
{
    m_common.sounds.play(Sound::Click);
    if (const auto notes = readGameNotes(m_database.database(), m_common.settings, gameIdText()))
        report.showNotes(*notes, skin.Shape_Color[SkinPage::Fore], skin.Shape_Color[SkinPage::Back]);
}

void EditorOwner::showBusy(bool busy)
{
    m_common.main.showBusy(busy);
}

QString EditorOwner::gameIdText() const
{
    return m_common.main.gameIdText();
}

QString EditorOwner::info() const
{
    return m_common.main.info();
}

QString EditorOwner::notes() const
{
    return m_common.main.notesText();
}

QByteArray EditorOwner::pictureAsBitmap() const
{
    return bitmapFile(m_common.main.wholePicture().toImage());
}

bool EditorOwner::showsLoadedEntry() const
{
    return m_common.main.showsLoadedEntry();
}

void EditorOwner::loadEntry()
{
    m_database.loadEntry();
}

void EditorOwner::clearPreview()
{
    m_database.gameList().clearPreview();
}

int EditorOwner::gameCount() const
{
    return m_common.main.gameCount();
}

int EditorOwner::selectedRow() const
{
    return m_common.main.selectedGameRow();
}

QString EditorOwner::selectedGameText() const
{
    return m_common.main.selectedGameText();
}

void EditorOwner::addGame(const QString& gameId)
{
    m_common.main.games().AddItem(gameId);
}

void EditorOwner::addTitle(const QString& title)
{
    m_common.main.titles().addItem(title);
}

void EditorOwner::removeRow(int row)
{
    m_common.main.removeRow(row);
}

void EditorOwner::deselect()
{
    m_common.main.games().setListIndex(-1);
    m_common.main.titles().setListIndex(-1);
}

} // namespace varnhold
