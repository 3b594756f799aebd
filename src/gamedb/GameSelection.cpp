#include "gamedb/GameSelection.h"

#include "covers/CoverFolder.h"
#include "gamedb/EntryView.h"
#include "lookup/LookupView.h"
#include "lookup/TitleCleaner.h"
#include "lookup/UpdateList.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

namespace varnhold {

namespace {

constexpr qsizetype gameIdLength = 9;

} // namespace

void GameSelection::loadEntry()
{
    if (m_loadEntry)
        m_loadEntry();
}

void GameSelection::MorphListBox1_Click()
{
    LookupView& view = m_services.view;
    m_services.sounds.play(Sound::Click);
    const QString text = view.selectedGameText();
    if (text.isEmpty())
        return;
    view.showListViews();
    m_services.updates.clear();
    m_services.state.LookupID = text.left(gameIdLength);
    view.setGameIdText(m_services.state.LookupID);
    showTitle();
    loadEntry();
}

void GameSelection::MorphListBox1_KeyUp()
{
    // Every key comes this way, the one that started a lookup too: its release clears the rows. This is
    // meant.
    LookupView& view = m_services.view;
    EntryView& entry = m_services.entry;
    entry.showBlankPicture();
    entry.showNotes({});
    view.showListViews();
    m_services.updates.clear();
    view.setGameIdText(view.selectedGameText());
    showTitle();
    const QString cover = m_services.covers.find(view.gameIdText());
    if (!cover.isEmpty())
        entry.showCoverFile(cover);
}

void GameSelection::showTitle()
{
    LookupView& view = m_services.view;
    const QString title =
        cleanTitle(view.selectTitleRow(view.selectedGameRow()), m_services.settings, view.gameIdText());
    if (!title.isEmpty())
        view.setInfo(title);
}

} // namespace varnhold
