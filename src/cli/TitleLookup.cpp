#include "cli/TitleLookup.h"

#include "cli/Session.h"
#include "lookup/Lookup.h"
#include "lookup/NavigationErrors.h"
#include "lookup/UnseenLookupView.h"
#include "lookup/UpdateList.h"
#include "platform/MessagePump.h"
#include "platform/NetworkBrowser.h"
#include "platform/SoundPlayer.h"
#include "state/HostAccess.h"
#include "state/Sounds.h"

#include <cmath>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr int notFound = 404;

class NoSound : public SoundPlayer
{
public:
    int play(const QString&) override { return 0; }
};

QList<Package> packagesOf(const UpdateList& list)
{
    QList<Package> packages;
    packages.reserve(list.count());
    for (int row = 1; row <= list.count(); ++row)
        packages.append({list.text(row), list.subItem(row, UpdateList::Version),
                         list.subItem(row, UpdateList::Size), list.subItem(row, UpdateList::Binary),
                         list.subItem(row, UpdateList::Url), list.icon(row)});
    return packages;
}

QString problemOf(int code, const QString& authority)
{
    const QString text =
        navigationErrorText(code).value_or(u"the server answered with status %1"_s.arg(code));
    return u"%1: %2."_s.arg(authority, text);
}

} // namespace

std::optional<qint64> Package::size() const
{
    const QString end = u" bytes)"_s;
    if (!sizeText.endsWith(end))
        return std::nullopt;
    const QStringView shown = QStringView(sizeText).chopped(end.size());
    bool isNumber = false;
    const double bytes = shown.sliced(shown.lastIndexOf(u'(') + 1).toDouble(&isNumber);
    constexpr double largestExact = 9007199254740992.0;
    if (!isNumber || !(std::abs(bytes) <= largestExact))
        return std::nullopt;
    return static_cast<qint64>(bytes);
}

TitleUpdates lookUp(Session& session, const QString& gameId)
{
    TitleUpdates found;
    const int server = session.settings().server();
    const QString authority = session.hosts().servers.at(static_cast<std::size_t>(server - 1)).authority;
    if (authority.isEmpty()) {
        found.problem = u"hosts.ini names no host for server %1."_s.arg(server);
        return found;
    }

    TerminalAlert alert(session.terminal());
    NetworkBrowser browser(alert, [&](const QString& asked) { return tlsOf(session.hosts(), asked); },
                           nullptr, {.silence = session.patience()});
    UpdateList list;
    UnseenLookupView view(gameId);
    NoSound player;
    Sounds sounds(session.settings(), player, session.state());
    EventLoopPump pump;
    Lookup lookup({session.state(), session.settings(), session.hosts(), list, view, browser, sounds,
                   session.boxes(), pump});
    std::optional<int> navigationError;
    QObject::connect(&browser, &BrowserControl::navigateError, &lookup,
                     [&](int code) { navigationError = code; });

    const int failuresBefore = session.boxes().failures();
    lookup.btnFetch_Click();

    found.title = view.info();
    found.packages = packagesOf(list);
    if (navigationError == notFound) {
        found.outcome = TitleUpdates::Outcome::NoSuchTitle;
        found.problem =
            u"There are no updates of %1 on server %2 (%3)."_s.arg(gameId).arg(server).arg(authority);
    } else if (navigationError) {
        found.problem = problemOf(*navigationError, authority);
    } else if (session.boxes().failures() > failuresBefore) {
        found.problem = u"The update document of %1 is damaged."_s.arg(gameId);
    } else if (!session.state().XMLText.contains(gameId)) {
        found.problem = u"%1 did not answer with the update document of %2."_s.arg(authority, gameId);
    } else {
        found.outcome = TitleUpdates::Outcome::Found;
    }
    return found;
}

} // namespace varnhold::cli
