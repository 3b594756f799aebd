#pragma once

#include <QString>

namespace varnhold {

struct UrlParts
{
    QString host;
    QString port; ///< text after the authority's first ":", "80" when there is none
    QString path; ///< begins with "/"
};

/// Cuts a plain http address: drops "http://" and then "www." (meant: the host sent never has that prefix),
/// path from the first "/", port from the first ":" of what stands before it. Knows no other scheme.
/// A port whose numericValue is 0 means that the address is not valid.
UrlParts Split_Url(const QString& url);

} // namespace varnhold
