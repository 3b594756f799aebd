#include "covers/ThumbPictures.h"

#include "platform/pictures/PictureReader.h"

#include <QFile>

#include <algorithm>
#include <sys/stat.h>

namespace varnhold {

ThumbPictures::Stamp ThumbPictures::stampOf(const QString& path)
{
    constexpr std::int64_t second = 1'000'000'000;
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec, status.st_size};
}

QPixmap ThumbPictures::cover(const QString& path, const QSize& most)
{
    const Stamp stamp = stampOf(path); // before the file is read: a change meanwhile makes it old
    const auto known = std::ranges::find_if(
        m_kept, [&](const Kept& kept) { return kept.path == path && kept.most == most; });
    if (known != m_kept.end()) {
        m_kept.splice(m_kept.begin(), m_kept, known);
        if (known->stamp == stamp)
            return known->picture;
        m_kept.pop_front();
    }
    m_kept.push_front({path, most, stamp, QPixmap::fromImage(readPictureFile(path, most))});
    if (m_kept.size() > mostKept)
        m_kept.pop_back();
    return m_kept.front().picture;
}

} // namespace varnhold
