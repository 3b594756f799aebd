#pragma once

namespace varnhold {

class Settings;
class SoundPlayer;
struct ApplicationState;

enum class Sound { Click = 0, Menu = 1, Open = 2, Close = 3 };

/// Plays the user's sounds: only while "Click Sounds" is on, without waiting, a missing file unreported.
class Sounds
{
public:
    Sounds(const Settings& settings, SoundPlayer& player, ApplicationState& state);
    void play(Sound sound);
    /// The settings page's play buttons: regardless of the check box.
    void playAlways(Sound sound);

private:
    const Settings& m_settings;
    SoundPlayer& m_player;
    ApplicationState& m_state;
};

} // namespace varnhold
