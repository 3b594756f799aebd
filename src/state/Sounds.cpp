#include "state/Sounds.h"

#include "platform/SoundPlayer.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"

namespace varnhold {

Sounds::Sounds(const Settings& settings, SoundPlayer& player, ApplicationState& state)
    : m_settings(settings), m_player(player), m_state(state)
{
}

void Sounds::play(Sound sound)
{
    if (m_settings.isChecked(Check::SoundsClick))
        playAlways(sound);
}

void Sounds::playAlways(Sound sound)
{
    const QString& path = m_settings.sound(static_cast<int>(sound)).tag;
    m_state.SoundResult = static_cast<qint16>(m_player.play(path));
}

} // namespace varnhold
