#include "covers/CoverServersPage.h"

#include "platform/MessageBoxes.h"

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// As it would be read back: what is blank counts as empty, and an empty name ends the reading.
CoverServer trimmed(const CoverServer& row)
{
    return {row.name.trimmed(), row.url.trimmed()};
}

} // namespace

CoverServersPage::CoverServersPage(CoverServers& servers, MessageBoxes& boxes, CoverServersView& view,
                                   QString title, std::function<void()> saved)
    : m_servers(servers), m_boxes(boxes), m_view(view), m_title(std::move(title)), m_saved(std::move(saved))
{
}

void CoverServersPage::shown()
{
    m_servers.readOnce();
    m_view.showRows(m_servers.rows(), m_view.currentRow());
}

void CoverServersPage::cmd_Fav_Click(int index)
{
    switch (index) {
    case 0:
        toggleEntry();
        break;
    case 1:
        addRow();
        break;
    case 2:
        changeRow();
        break;
    case 3:
        deleteCurrent();
        break;
    case 4:
        deleteSelected();
        break;
    case 5:
        m_servers.saveCoverServers();
        m_saved();
        break;
    default:
        break;
    }
}

void CoverServersPage::toggleEntry()
{
    if (m_view.isEntryOpen())
        m_view.setEntry({});
    m_view.openEntry(!m_view.isEntryOpen());
}

void CoverServersPage::addRow()
{
    const CoverServer row = trimmed(m_view.entry());
    if (row.name.isEmpty())
        m_boxes.show(
            {.text = u"Please fill in a Title"_s, .title = u"Title Error"_s, .icon = BoxIcon::Exclamation});
    else if (row.url.isEmpty())
        m_boxes.show({.text = u"Please fill in a server url"_s,
                      .title = u"Url Error"_s,
                      .icon = BoxIcon::Exclamation});
    else if (fits(row) && m_servers.add(row))
        m_view.showRows(m_servers.rows(), static_cast<int>(m_servers.rows().size()) - 1);
}

void CoverServersPage::changeRow()
{
    const CoverServer row = trimmed(m_view.entry());
    const int current = m_view.currentRow();
    if (!row.name.isEmpty() && !row.url.isEmpty() && current >= 0 && fits(row) &&
        m_servers.change(current, row))
        m_view.showRows(m_servers.rows(), current);
}

bool CoverServersPage::fits(const CoverServer& row)
{
    if (row.name.size() <= CoverServers::longest && row.url.size() <= CoverServers::longest)
        return true;
    m_boxes.show({.text = u"A title or url may have %1 characters at most."_s.arg(CoverServers::longest),
                  .title = m_title,
                  .icon = BoxIcon::Exclamation});
    return false;
}

void CoverServersPage::deleteCurrent()
{
    const int current = m_view.currentRow();
    if (current < 0 || current >= m_servers.rows().size())
        return;
    const CoverServer row = m_servers.rows().at(current);
    if (!isYes(u"Delete\r\n"_s + row.name + u"\r\nYes or No!"_s))
        return;
    m_servers.remove(
        {static_cast<int>(m_servers.rows().indexOf(row))}); // the list may have changed meanwhile
    m_view.showRows(m_servers.rows(), std::min(current, static_cast<int>(m_servers.rows().size()) - 1));
}

void CoverServersPage::deleteSelected()
{
    QList<CoverServer> chosen;
    QString names;
    for (const int index : m_view.selectedRows()) {
        chosen.append(m_servers.rows().at(index));
        names += chosen.constLast().name + u"\r\n"_s;
    }
    if (chosen.isEmpty() || !isYes(u"Remove selected Servers/s?\r\n"_s + names + u"Yes or No!"_s))
        return;
    QList<int> indexes;
    for (const CoverServer& row : std::as_const(chosen))
        indexes.append(static_cast<int>(m_servers.rows().indexOf(row)));
    m_servers.remove(indexes);
    m_view.showRows(m_servers.rows(), -1);
}

bool CoverServersPage::isYes(const QString& text)
{
    return m_boxes.show(
               {.text = text, .title = m_title, .icon = BoxIcon::Question, .buttons = BoxButtons::YesNo}) ==
           BoxAnswer::Yes;
}

void CoverServersPage::btn_fav_Change_Click(int index)
{
    const int by = index == 0 ? -1 : 1;
    const int current = m_view.currentRow();
    if (m_servers.moveCoverServerRow(current, by))
        m_view.showRows(m_servers.rows(), current + by);
}

void CoverServersPage::ListView1_DblClick(int row)
{
    if (row < 0 || row >= m_servers.rows().size())
        return;
    m_view.setEntry(m_servers.rows().at(row));
    m_view.openEntry(true);
}

void CoverServersPage::btn_Cover_Help_Click()
{
    m_boxes.show({.text = u"Covers are located with ID's\r\n"
                          "Example: BLUS98114.JPG\r\n"
                          "Urls must contain an ending /\r\n"
                          "Examples:\r\n"
                          "http://covers.example.com/ps3/\r\n"
                          "http://covers.example.org/images/\r\n"
                          "Double Click LV to edit Row"_s,
                  .title = u"Cover Help"_s,
                  .icon = BoxIcon::Information});
}

} // namespace varnhold
