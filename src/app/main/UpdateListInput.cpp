#include "app/main/UpdateListInput.h"

#include "app/main/UpdateListView.h"
#include "controls/CTooltip/CTooltip.h"
#include "lookup/UpdateList.h"
#include "lookup/UpdateListTip.h"
#include "platform/HandCursors.h"
#include "platform/ToolTipText.h"
#include "state/Sounds.h"

namespace varnhold {

UpdateListInput::UpdateListInput(UpdateListView& updates, const UpdateList& list, Sounds& sounds)
    : m_updates(updates), m_list(list)
{
    connect(&updates, &UpdateListView::rowHovered, this, &UpdateListInput::onHover);
    connect(&updates, &UpdateListView::buttonPressed, this,
            [this] { m_updates.viewport()->setCursor(imgCurser(2)); });
    connect(&updates, &UpdateListView::buttonReleased, this, [this, &sounds] {
        sounds.play(Sound::Menu);
        m_updates.viewport()->setCursor(imgCurser(0));
    });
    connect(&updates, &UpdateListView::menuWanted, this, &UpdateListInput::menuWanted);
    connect(&updates, &UpdateListView::rowActivated, this, [this, &sounds] {
        sounds.play(Sound::Click);
        Q_EMIT rowActivated();
    });
}

void UpdateListInput::createToolTip(QWidget& owner)
{
    m_toolTip = new CTooltip(&owner);
    m_toolTip->setStyle(1);
    m_toolTip->setIcon(1);
    colorToolTip();
}

void UpdateListInput::setTipColors(ColorValue fore, ColorValue back)
{
    m_tipColors = {fore, back};
    colorToolTip();
}

void UpdateListInput::colorToolTip()
{
    if (m_toolTip == nullptr || !m_tipColors)
        return;
    m_toolTip->setForeColor(m_tipColors->front());
    m_toolTip->setBackColor(m_tipColors->back());
}

void UpdateListInput::onHover(int row, bool onIcon)
{
    QWidget* view = m_updates.viewport();
    if (m_toolTip == nullptr)
        return;
    m_toolTip->Destroy();
    view->setToolTip({});
    if (row == 0)
        return;
    // Over the icon, which is the only sign of what is on disk, stands what it says.
    if (const QString meaning = onIcon ? iconMeaning(m_list.icon(row)) : QString(); !meaning.isEmpty()) {
        view->setToolTip(meaning);
        return;
    }
    if (!m_list.hasSubItem(row, UpdateList::Url)) {
        view->setToolTip(toolTipText(m_list.text(row)));
        return;
    }
    m_toolTip->setTitle(m_tipTitle ? m_tipTitle() : QString());
    m_toolTip->setTipText(updateListTip(m_list, row));
    m_toolTip->Create(view);
}

} // namespace varnhold
