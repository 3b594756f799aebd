#pragma once

#include "platform/SoundPlayer.h"

#include <QThread>

namespace varnhold {

/// Plays through SDL's mixer. Opening the sound device can take long, so it happens at the first sound and on
/// a thread of its own; without a device the sounds are dropped.
class SdlSoundPlayer : public SoundPlayer
{
public:
    SdlSoundPlayer();
    ~SdlSoundPlayer() override;
    SdlSoundPlayer(const SdlSoundPlayer&) = delete;
    SdlSoundPlayer& operator=(const SdlSoundPlayer&) = delete;

    /// 1 when the file is there and was handed to the mixer.
    int play(const QString& path) override;

private:
    class Mixer;

    QThread m_thread;
    Mixer* m_mixer;
};

} // namespace varnhold
