#include "covers/CoverFetch.h"

#include "covers/CoverFolder.h"
#include "covers/CoverServers.h"
#include "lookup/NavigationErrors.h"
#include "platform/DownloadToFile.h"
#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "platform/NavigationCodes.h"
#include "platform/ReadFile.h"
#include "platform/ReplaceFile.h"
#include "platform/pictures/PictureHeader.h"
#include "state/Settings.h"
#include "state/Sounds.h"
#include "state/WaitLoop.h"

#include <QFileInfo>
#include <QScopeGuard>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr FetchLimits limits{.bytes = pictureLimits::jpegBytes};

/// The words for a failure. An answer that the table does not know by its number is told by what it means.
QString failureText(const FetchResult& result)
{
    constexpr int ok = 200;
    constexpr int unauthorized = 401;
    constexpr int forbidden = 403;
    constexpr int needsAuthentication = -2146697207;
    constexpr int unableToLoad = -2146697201;
    int code = result.error;
    if (code == 0 && result.status == ok)
        code = navigation::noData; // it came, and is no picture
    else if (code == 0 && (result.status == unauthorized || result.status == forbidden))
        code = needsAuthentication;
    else if (code == 0)
        code = result.status == navigation::notFound ? result.status : unableToLoad;
    return navigationErrorText(code).value_or(QString());
}

} // namespace

CoverOutcome fetchCover(FileFetch& fetch, const QString& url, const QString& target)
{
    FetchResult result;
    const bool isFetched = Download_To_File(
        fetch, url, target, limits,
        [](const QString& path) { return isWholePicture(tryReadFile(path, limits.bytes).bytes); }, &result);
    return {isFetched, result.status, isFetched ? QString() : failureText(result)};
}

void CoverFetch::mnuCServs_Click(int index)
{
    const Services& with = m_services;
    if (m_isRunning)
        return;
    if (with.folder.path().isEmpty()) {
        with.boxes.show({.text = u"Please select Cover path in Settings / Covers"_s,
                         .title = with.title,
                         .icon = BoxIcon::Exclamation});
        return;
    }
    with.sounds.play(Sound::Click);
    m_isRunning = true;
    const auto running = qScopeGuard([this] { m_isRunning = false; });
    run(with.view.selectedGameText(), with.servers.menu().value(index).url);
}

/// Text and address are taken at the click: whatever is selected or saved during the waits, this fetch is
/// about what the user pointed at.
void CoverFetch::run(const QString& text, const QString& serverUrl)
{
    const Services& with = m_services;
    const QString target = with.folder.target(text);
    if (target.isEmpty()) {
        tellFailure(navigationErrorText(navigation::invalidUrl).value_or(QString()));
        return;
    }
    const bool isThere = !with.folder.find(text).isEmpty();
    if (!isThere || mayWrite(text))
        download(coverUrl(serverUrl, text), target);
    Wait_Loop(1, with.pump);
    // Another game's preview is not this one's place.
    if (with.pump.pump() && with.view.selectedGameText() == text)
        with.view.showCover(target);
}

bool CoverFetch::mayWrite(const QString& text) const
{
    return m_services.boxes.show({.text = u"Over write this file?\r\n\r\n"_s + text + u".jpg"_s,
                                  .title = u"Over Write?"_s,
                                  .icon = BoxIcon::Question,
                                  .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
}

void CoverFetch::download(const QString& url, const QString& target)
{
    const Services& with = m_services;
    const QString folder = QFileInfo(target).path();
    if (!m_cleared.contains(folder)) {
        clearLeftovers(folder);
        m_cleared.insert(folder);
    }
    with.view.setStatus(u"Downloading "_s + url + u"..."_s);
    with.view.showBusy(true);
    const CoverOutcome outcome = fetchCover(with.fetch, url, target);
    if (!with.pump.pump())
        return; // the program is ending: no window is to be touched any more
    with.view.showBusy(false);
    if (outcome.isFetched)
        with.view.setStatus(u"Done"_s);
    else
        tellFailure(outcome.why);
}

void CoverFetch::tellFailure(const QString& why)
{
    m_services.view.setStatus(why);
    m_services.boxes.show(
        {.text = u"No File Exist!"_s, .title = m_services.title, .icon = BoxIcon::Exclamation});
}

void CoverFetch::cancel()
{
    if (m_isRunning)
        m_services.fetch.cancel();
}

} // namespace varnhold
