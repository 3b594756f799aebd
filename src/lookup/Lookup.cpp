#include "lookup/Lookup.h"

#include "lookup/LookupView.h"
#include "lookup/NavigationErrors.h"
#include "lookup/TitleCleaner.h"
#include "lookup/UpdateList.h"
#include "lookup/UpdateServers.h"
#include "platform/BrowserControl.h"
#include "platform/MessagePump.h"
#include "state/ApplicationState.h"
#include "state/ErrorReport.h"
#include "state/Hosts.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <cmath>
#include <limits>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype gameIdLength = 9;

/// What follows the last dot of the last part of a path; empty without a dot.
QString extensionOf(const QString& path)
{
    const qsizetype slash = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > slash ? path.mid(dot + 1) : QString();
}

} // namespace

Lookup::Lookup(const Services& services, QObject* parent)
    : QObject(parent),
      m_services(services),
      m_document(services.state, services.settings, services.list, services.view, services.boxes)
{
    connect(&services.browser, &BrowserControl::statusTextChanged, this, &Lookup::onStatusText);
    connect(&services.browser, &BrowserControl::progressChanged, this, &Lookup::onProgress);
    connect(&services.browser, &BrowserControl::navigateError, this, &Lookup::onNavigateError);
}

void Lookup::setEntryLoader(EntryLoader loader)
{
    m_loadEntry = std::move(loader);
}

void Lookup::setLinkSaver(LinkSaver saver)
{
    m_document.setLinkSaver(std::move(saver));
}

void Lookup::btnFetch_Click()
{
    LookupView& view = m_services.view;
    m_services.sounds.play(Sound::Click);
    const QString gameId = view.gameIdText();
    if (gameId.isEmpty())
        return;
    view.setInfo({});
    view.showListViews();
    m_services.list.clear();
    // Only the address is in upper case: a page is looked through for the id as it was typed.
    m_services.state.LookupID = gameId;
    navigate(gameId.toUpper());
    waitUntilIdle();
}

void Lookup::MorphListBox1_DblClick()
{
    LookupView& view = m_services.view;
    m_services.sounds.play(Sound::Click);
    const QString text = view.selectedGameText();
    if (text.isEmpty())
        return;
    view.setInfo({});
    view.setBlank({});
    m_services.list.clear();
    view.showListViews();
    m_services.state.LookupID = text.left(gameIdLength);
    view.setGameIdText(m_services.state.LookupID);
    lookUpSelectedRow();
}

void Lookup::ID_Click()
{
    LookupView& view = m_services.view;
    m_services.sounds.play(Sound::Click);
    view.setInfo({});
    view.setBlank({});
    m_services.list.clear();
    if (m_loadEntry)
        silently(m_loadEntry);
    m_services.state.LookupID = view.gameIdText().left(gameIdLength);
    lookUpSelectedRow();
}

void Lookup::lookUpSelectedRow()
{
    const int row = m_services.view.selectedGameRow();
    showTitleOfRow(row);
    navigate(m_services.state.LookupID);
    // 16 bits: a row further down leaves the old one in place.
    if (row <= std::numeric_limits<qint16>::max())
        m_listRow = static_cast<qint16>(row);
    waitUntilIdle();
}

void Lookup::showTitleOfRow(int row)
{
    LookupView& view = m_services.view;
    const QString title = cleanTitle(view.selectTitleRow(row), m_services.settings, view.gameIdText());
    if (!title.isEmpty())
        view.setInfo(title);
}

void Lookup::navigate(const QString& gameId)
{
    const QString url = Document_Url(m_services.hosts, m_services.settings.server(), gameId);
    if (!url.isEmpty())
        m_services.browser.navigate(url);
}

void Lookup::waitUntilIdle()
{
    while (m_services.browser.busy())
        if (!m_services.pump.pumpNext())
            return;
}

void Lookup::onStatusText(const QString& text)
{
    m_services.view.setStatus(text);
    if (text == u"Done"_s)
        onDone();
}

void Lookup::onDone()
{
    QString& document = m_services.state.XMLText;
    // Without a body the text of the last page stays.
    if (std::optional<QString> body = m_services.browser.bodyText())
        document = *std::move(body);
    if (document.contains(u"The XML page cannot be displayed"_s)) {
        m_services.view.setStatus(u"No Update Info is Available"_s);
        return;
    }
    const QString& id = m_services.state.LookupID;
    if (!id.isEmpty() && document.contains(id))
        m_document.Fill_Updates(m_listRow);
    m_services.view.autosizeColumns();
}

void Lookup::onProgress(int progress, int maximum)
{
    LookupView& view = m_services.view;
    if (progress == -1)
        view.setProgressValue(100);
    view.hideProgress();
    if (progress < 1 || maximum < 1)
        return;
    view.showProgress();
    const qint64 product = qint64{progress} * 100;
    // The product is one of 32 bits: from there on the bar shows the value that it has.
    if (product <= std::numeric_limits<qint32>::max())
        view.setProgressValue(static_cast<int>(std::lrint(static_cast<double>(product) / maximum)));
}

void Lookup::onNavigateError(int code)
{
    if (const std::optional<QString> text = navigationErrorText(code))
        m_services.view.setStatus(*text);
}

void Lookup::dropText(const QString& text, const DropTarget& target)
{
    reporting(m_services.boxes, DescriptionLabel::WithoutBlank, [&] {
        const QString extension = extensionOf(text.toLower());
        if (extension == u"pkg"_s)
            target(text);
        else
            m_services.boxes.show({u"This Extension is not supported\r\n\r\nExtension: \t"_s + extension,
                                   u"Varnhold"_s, BoxIcon::Critical, BoxButtons::Ok});
    });
}

} // namespace varnhold
