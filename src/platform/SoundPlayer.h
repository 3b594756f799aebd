#pragma once

#include <QString>

namespace varnhold {

/// Plays a wav or mp3 file without waiting; a new sound cuts off the one that plays.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;
    /// 1 when it started, 0 when it did not (no such file, no sound device). Never reports.
    virtual int play(const QString& path) = 0;
};

} // namespace varnhold
