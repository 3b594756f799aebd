#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

#include <cstdint>
#include <list>

namespace varnhold {

/// Covers that were read lately, scaled down for the thumbnail window, so that a step of its bar reads one
/// file. What is kept is kept by path, time and size: a cover that has changed on disk is read anew.
class ThumbPictures
{
public:
    /// The cover, at most so large in pixels; null for a file that is no picture.
    QPixmap cover(const QString& path, const QSize& most);

private:
    struct Stamp
    {
        std::int64_t changed = 0; ///< nanoseconds
        std::int64_t size = -1;
        bool operator==(const Stamp&) const = default;
    };
    struct Kept
    {
        QString path;
        QSize most;
        Stamp stamp;
        QPixmap picture;
    };

    static Stamp stampOf(const QString& path);

    static constexpr std::size_t mostKept = 24;
    std::list<Kept> m_kept; ///< the latest first
};

} // namespace varnhold
