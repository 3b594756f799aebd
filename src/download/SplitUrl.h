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
UrlParts Split_Url(QString url);

/// Numeric value of a port text the way the program reads numbers from text: leading digits count, anything
/// else is 0. A value of 0 means that the url is not valid.
double portValue(const QString& port);

} // namespace varnhold
