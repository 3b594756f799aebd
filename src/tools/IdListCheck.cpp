#include "tools/IdListCheck.h"

#include "platform/DownloadToFile.h"
#include "platform/MessageBoxes.h"
#include "platform/ReadFile.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SizeText.h"

#include <QFileInfo>

#include <limits>

namespace varnhold {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString sizesText(const IdListSizes& sizes)
{
    const bool exists = sizes.existing >= 0;
    const QString existing = exists ? Size_Text(static_cast<double>(sizes.existing)) : u"0"_s;
    return u"Existing:\tBytes:\t"_s + QString::number(exists ? sizes.existing : 0) + u"\r\n\tFile Size:\t"_s +
           existing + u"\r\nUpdate:\tBytes:\t"_s + QString::number(sizes.update) + u"\r\n\tFile Size:\t"_s +
           Size_Text(static_cast<double>(sizes.update)) + u"\r\nAvailable:\t"_s;
}

} // namespace

qint64 Http_File_Size(FileFetch& fetch, const QString& url)
{
    const FetchResult result = fetch.head(url, {.redirects = 0, .silence = 10s, .whole = 60s});
    const bool isPlain =
        result.isOk() && result.toldLength >= 0 && result.toldLength <= std::numeric_limits<qint32>::max();
    return isPlain ? result.toldLength : -1;
}

QString IdListSizes::settingsText() const
{
    return sizesText(*this) + (isAvailable() ? u"Yes"_s : u"NO"_s);
}

QString IdListSizes::boxText() const
{
    return sizesText(*this) + u'\t' + (isAvailable() ? u"Yes"_s : u"NO"_s) + u"\r\n"_s;
}

IdListSizes checkIdList(FileFetch& fetch, const Settings& settings, const Paths& paths)
{
    const QString path = paths.idList();
    IdListSizes sizes;
    if (isRegularFile(path))
        sizes.existing = QFileInfo(path).size();
    sizes.update = Http_File_Size(fetch, settings.listUrl().tag);
    return sizes;
}

bool downloadIdList(FileFetch& fetch, const Settings& settings, const Paths& paths, MessageBoxes& boxes,
                    const QString& applicationTitle)
{
    const QString url = settings.listUrl().tag;
    if (url.isEmpty())
        return false;
    constexpr std::int64_t mostBytes = 64 << 20;
    if (!Download_To_File(fetch, url, paths.idList(), {.bytes = mostBytes, .silence = 30s, .whole = 1h}))
        boxes.show({u"No File Exist!"_s, applicationTitle, BoxIcon::Exclamation, BoxButtons::Ok});
    return true;
}

} // namespace varnhold
