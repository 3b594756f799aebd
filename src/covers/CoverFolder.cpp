#include "covers/CoverFolder.h"

#include "platform/Files.h"
#include "platform/ReadFile.h"
#include "state/Settings.h"

#include <QFile>
#include <QStringList>

#include <ctime>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

const QString& extension()
{
    static const QString text = u".jpg"_s;
    return text;
}

QMultiHash<QString, QString> coverNames(const QString& folder)
{
    QMultiHash<QString, QString> names;
    const auto closing = [](DIR* listing) { ::closedir(listing); };
    const std::unique_ptr<DIR, decltype(closing)> listing(::opendir(QFile::encodeName(folder).constData()),
                                                          closing);
    while (const dirent* const entry = listing ? ::readdir(listing.get()) : nullptr) {
        const QString name = QFile::decodeName(entry->d_name);
        if (name.endsWith(extension(), Qt::CaseInsensitive))
            names.insert(name.toCaseFolded(), name);
    }
    return names;
}

} // namespace

const QString& CoverFolder::path() const
{
    return m_settings == nullptr ? m_path : m_settings->covers().tag;
}

CoverFolder::Stamp CoverFolder::stampOf(const QString& folder)
{
    constexpr std::int64_t second = 1'000'000'000;
    struct stat status = {};
    if (::stat(QFile::encodeName(folder).constData(), &status) != 0)
        return {};
    return {status.st_dev, status.st_ino, status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec};
}

const CoverFolder::Names& CoverFolder::names(const QString& folder) const
{
    const Stamp stamp = stampOf(folder);
    if (m_listed == folder && stamp == m_stamp && stamp != Stamp())
        return m_names;
    m_names = coverNames(folder);
    m_listed = folder;
    // A folder that has only just changed may change again within the same tick of its clock: the listing
    // counts for this time, and not for the next.
    constexpr std::time_t tick = 2;
    constexpr std::int64_t second = 1'000'000'000;
    m_stamp = stamp.changed / second + tick < std::time(nullptr) ? stamp : Stamp();
    return m_names;
}

QString CoverFolder::find(const QString& gameId) const
{
    const QString& folder = path();
    const QString name = gameId + extension();
    if (folder.isEmpty() || !isOneName(name))
        return {};
    const QString exact = folder + u'/' + name;
    if (isRegularFile(exact))
        return exact;
    QStringList others = names(folder).values(name.toCaseFolded());
    others.sort(); // the same one each time
    for (const QString& other : std::as_const(others))
        if (isRegularFile(folder + u'/' + other))
            return folder + u'/' + other;
    return {};
}

QString CoverFolder::target(const QString& gameId) const
{
    const QString name = gameId + extension();
    if (path().isEmpty() || !isOneName(name))
        return {};
    const QString there = find(gameId);
    return there.isEmpty() ? path() + u'/' + name : there;
}

} // namespace varnhold
