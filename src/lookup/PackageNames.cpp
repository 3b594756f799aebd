#include "lookup/PackageNames.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

QString withExtension(QString text, const QString& extension)
{
    return text.replace(u".pkg"_s, extension);
}

} // namespace

QString fileNameOf(const QString& url)
{
    return url.mid(url.lastIndexOf(u'/') + 1);
}

PackageNames packageNames(const QString& url)
{
    const QString name = fileNameOf(url);
    return {name, withExtension(name, u".temp"_s), withExtension(name, u".txt"_s)};
}

QString markerOfPath(const QString& packagePath)
{
    return withExtension(packagePath, u".txt"_s);
}

} // namespace varnhold
