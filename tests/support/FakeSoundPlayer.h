#pragma once

#include "platform/SoundPlayer.h"

#include <QStringList>

namespace varnhold::test {

/// Keeps what it was asked to play.
class FakeSoundPlayer : public SoundPlayer
{
public:
    int play(const QString& path) override
    {
        played.append(path);
        return result;
    }

    QStringList played;
    int result = 1;
};

} // namespace varnhold::test
