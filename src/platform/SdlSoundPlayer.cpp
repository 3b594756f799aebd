#include "platform/SdlSoundPlayer.h"

#include <QFile>
#include <QFileInfo>

#include <SDL.h>
#include <SDL_mixer.h>

namespace varnhold {

/// Lives on the sound thread.
class SdlSoundPlayer::Mixer : public QObject
{
public:
    ~Mixer() override
    {
        if (m_music != nullptr)
            Mix_FreeMusic(m_music);
        if (m_state == State::Open) {
            Mix_CloseAudio();
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
        }
    }

    void play(const QString& path)
    {
        if (!open())
            return;
        Mix_Music* music = Mix_LoadMUS(QFile::encodeName(path).constData());
        if (music == nullptr)
            return;
        Mix_HaltMusic();
        if (m_music != nullptr)
            Mix_FreeMusic(m_music);
        m_music = music;
        Mix_PlayMusic(m_music, 1);
    }

private:
    enum class State { Untried, Open, Unusable };

    bool open()
    {
        if (m_state == State::Untried) {
            m_state = State::Unusable;
            // Signals stay the program's own.
            SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
            if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
                if (Mix_OpenAudio(44100, AUDIO_S16SYS, 2, 1024) == 0)
                    m_state = State::Open;
                else
                    SDL_QuitSubSystem(SDL_INIT_AUDIO);
            }
        }
        return m_state == State::Open;
    }

    State m_state = State::Untried;
    Mix_Music* m_music = nullptr;
};

SdlSoundPlayer::SdlSoundPlayer() : m_mixer(new Mixer)
{
    m_mixer->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_mixer, &QObject::deleteLater);
    m_thread.start();
}

SdlSoundPlayer::~SdlSoundPlayer()
{
    m_thread.quit();
    m_thread.wait();
}

int SdlSoundPlayer::play(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return 0;
    QMetaObject::invokeMethod(
        m_mixer, [mixer = m_mixer, path] { mixer->play(path); }, Qt::QueuedConnection);
    return 1;
}

} // namespace varnhold
