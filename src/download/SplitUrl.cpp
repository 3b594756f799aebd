#include "download/SplitUrl.h"

namespace varnhold {

using namespace Qt::StringLiterals;

UrlParts Split_Url(const QString& url)
{
    QStringView rest = url;
    if (rest.startsWith(u"http://"_s, Qt::CaseInsensitive))
        rest = rest.sliced(7);
    if (rest.startsWith(u"www."_s, Qt::CaseInsensitive))
        rest = rest.sliced(4);

    UrlParts parts;
    const qsizetype slash = rest.indexOf(u'/');
    const QStringView authority = slash < 0 ? rest : rest.first(slash);
    parts.path = slash < 0 ? u"/"_s : rest.sliced(slash).toString();

    const qsizetype colon = authority.indexOf(u':');
    parts.host = (colon < 0 ? authority : authority.first(colon)).toString();
    parts.port = colon < 0 ? u"80"_s : authority.sliced(colon + 1).toString();
    return parts;
}

} // namespace varnhold
