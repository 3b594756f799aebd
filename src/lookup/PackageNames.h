#pragma once

#include <QString>

namespace varnhold {

/// The three files of one package, as names without a folder: the package, a download of it under way or left
/// behind, the empty marker. Wherever ".pkg" stands in the name it is replaced, in this case only; a name
/// without it thus stands for all three.
struct PackageNames
{
    QString package;
    QString temporary;
    QString marker;
};

/// What follows the url's last "/".
QString fileNameOf(const QString& url);

/// Of the file that a url names.
PackageNames packageNames(const QString& url);

/// The marker's path when ".pkg" is replaced in the whole path, folders included; meant for the one command
/// that does so.
QString markerOfPath(const QString& packagePath);

} // namespace varnhold
