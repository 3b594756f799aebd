#include "tools/VersionCheck.h"

#include "platform/CodePage.h"
#include "platform/DownloadToFile.h"
#include "platform/MessageBoxes.h"
#include "platform/ReadFile.h"
#include "state/Hosts.h"
#include "state/Paths.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t mostBytes = 1 << 20;

QString urlOf(const HostEntry& host)
{
    constexpr auto usualPort = ":6969"_L1;
    const QString authority = host.authority.contains(u':') ? host.authority : host.authority + usualPort;
    return u"http://"_s + authority + u"/Varnhold/txt/version.txt"_s;
}

} // namespace

QString versionIn(QByteArrayView file)
{
    QString text = fromCodePage(file);
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.sliced(text.lastIndexOf(u'\n') + 1).remove(u' ');
}

bool isNewerVersion(const QString& version)
{
    return version > QLatin1StringView(VARNHOLD_VERSION);
}

VersionNews Version_Check(FileFetch& fetch, const Hosts& hosts, const Paths& paths, MessageBoxes& boxes,
                          const QString& applicationTitle)
{
    VersionNews news;
    if (hosts.update.authority.isEmpty())
        return news;
    using namespace std::chrono_literals;
    news.reached = Download_To_File(fetch, urlOf(hosts.update), paths.versionFile(),
                                    {.bytes = mostBytes, .silence = 5s, .whole = 5s});
    if (!news.reached)
        boxes.show({u"No File Exist!"_s, applicationTitle, BoxIcon::Exclamation, BoxButtons::Ok});
    const FileBytes file = tryReadFile(paths.versionFile(), mostBytes);
    news.outcome = VersionNews::Outcome::Unread;
    if (!file.isRead)
        return news;
    const QString version = versionIn(file.bytes);
    const bool newer = isNewerVersion(version);
    news.outcome = newer ? VersionNews::Outcome::Newer : VersionNews::Outcome::None;
    if (newer)
        news.caption = u"Update Available - "_s + version;
    return news;
}

} // namespace varnhold
