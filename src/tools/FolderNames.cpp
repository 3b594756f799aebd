#include "tools/FolderNames.h"

#include "platform/Folders.h"
#include "platform/ReplaceText.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

bool isAt(const QString& path, QStringView folder)
{
    return path.startsWith(folder) && (path.size() == folder.size() || path.at(folder.size()) == u'/');
}

bool isSystems(const QString& path)
{
    // People's homes and drives hang below these.
    constexpr std::array<QStringView, 3> open{u"/run/media/", u"/run/user/", u"/var/home/"};
    if (std::ranges::any_of(open, [&](QStringView folder) { return path.startsWith(folder); }))
        return false;
    constexpr std::array<QStringView, 10> closed{u"/bin", u"/boot", u"/dev", u"/etc", u"/proc",
                                                 u"/run", u"/sbin", u"/sys", u"/usr", u"/var"};
    constexpr std::array<QStringView, 6> themselves{u"/",    u"/home",      u"/media",
                                                    u"/opt", u"/run/media", u"/var/home"};
    return std::ranges::find(themselves, path) != themselves.end() || path.startsWith(u"/lib"_s) ||
           std::ranges::any_of(closed, [&](QStringView folder) { return isAt(path, folder); });
}

} // namespace

NameCleaning NameCleaning::from(const QString& list, bool doubleBlanks)
{
    return {list.split(u',', Qt::SkipEmptyParts), doubleBlanks};
}

QString cleanedPath(QString path, const NameCleaning& cleaning)
{
    if (cleaning.doubleBlanks)
        replaceIn(path, u"  "_s, u" "_s);
    for (const QString& unwanted : cleaning.unwanted)
        replaceIn(path, unwanted);
    return path;
}

bool isGuarded(const QString& path)
{
    if (path.startsWith(u'C'))
        return true;
    return isSystems(QDir::cleanPath(path)) || isSystems(resolvedPath(path));
}

} // namespace varnhold
