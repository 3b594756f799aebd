#include "platform/SdlSoundPlayer.h"

#include "platform/ReadFile.h"

#include <QFile>
#include <QLibrary>

#include <SDL.h>
#include <SDL_mixer.h>

namespace varnhold {

namespace {

using AlsaReport = void (*)(const char* file, int line, const char* function, int code, const char* format,
                            ...);
using SynthReport = void (*)(int level, const char* message, void* data);

void keepSilent(const char* /*file*/, int /*line*/, const char* /*function*/, int /*code*/,
                const char* /*format*/, ...)
{
}

/// SDL's mixer, loaded when the first sound is played: it brings half a hundred libraries with it, and to
/// load those took as long as all else until the splash was up.
class MixerLibrary
{
public:
    bool load()
    {
        // What SDL itself exports is found through the mixer, which depends on it.
        return resolve(setHint, "SDL_SetHint") && resolve(initSubSystem, "SDL_InitSubSystem") &&
               resolve(quitSubSystem, "SDL_QuitSubSystem") && resolve(openAudio, "Mix_OpenAudio") &&
               resolve(closeAudio, "Mix_CloseAudio") && resolve(loadMusic, "Mix_LoadMUS") &&
               resolve(freeMusic, "Mix_FreeMusic") && resolve(haltMusic, "Mix_HaltMusic") &&
               resolve(playMusic, "Mix_PlayMusic");
    }

    /// A machine without a sound card makes no lines on standard error, nor does a tune without instruments.
    void silenceReports()
    {
        void (*setAlsaReport)(AlsaReport) = nullptr;
        if (resolve(setAlsaReport, "snd_lib_error_set_handler"))
            setAlsaReport(keepSilent);
        SynthReport (*setSynthReport)(int, SynthReport, void*) = nullptr;
        if (resolve(setSynthReport, "fluid_set_log_function")) {
            constexpr int levels = 5;
            for (int level = 0; level < levels; ++level)
                setSynthReport(level, nullptr, nullptr);
        }
    }

    decltype(&SDL_SetHint) setHint = nullptr;
    decltype(&SDL_InitSubSystem) initSubSystem = nullptr;
    decltype(&SDL_QuitSubSystem) quitSubSystem = nullptr;
    decltype(&Mix_OpenAudio) openAudio = nullptr;
    decltype(&Mix_CloseAudio) closeAudio = nullptr;
    decltype(&Mix_LoadMUS) loadMusic = nullptr;
    decltype(&Mix_FreeMusic) freeMusic = nullptr;
    decltype(&Mix_HaltMusic) haltMusic = nullptr;
    decltype(&Mix_PlayMusic) playMusic = nullptr;

private:
    template <typename Function> bool resolve(Function& function, const char* name)
    {
        function = reinterpret_cast<Function>(m_library.resolve(name));
        return function != nullptr;
    }

    QLibrary m_library{QStringLiteral("SDL2_mixer-2.0"), 0};
};

} // namespace

/// Lives on the sound thread.
class SdlSoundPlayer::Mixer : public QObject
{
public:
    ~Mixer() override
    {
        if (m_music != nullptr)
            m_sdl.freeMusic(m_music);
        if (m_state == State::Open) {
            m_sdl.closeAudio();
            m_sdl.quitSubSystem(SDL_INIT_AUDIO);
        }
    }

    void play(const QString& path)
    {
        if (!open())
            return;
        Mix_Music* music = m_sdl.loadMusic(QFile::encodeName(path).constData());
        if (music == nullptr)
            return;
        m_sdl.haltMusic();
        if (m_music != nullptr)
            m_sdl.freeMusic(m_music);
        m_music = music;
        m_sdl.playMusic(m_music, 1);
    }

private:
    enum class State { Untried, Open, Unusable };

    bool open()
    {
        if (m_state == State::Untried) {
            m_state = State::Unusable;
            if (!m_sdl.load())
                return false;
            m_sdl.silenceReports();
            // Signals stay the program's own.
            m_sdl.setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
            if (m_sdl.initSubSystem(SDL_INIT_AUDIO) == 0) {
                if (m_sdl.openAudio(44100, AUDIO_S16SYS, 2, 1024) == 0)
                    m_state = State::Open;
                else
                    m_sdl.quitSubSystem(SDL_INIT_AUDIO);
            }
        }
        return m_state == State::Open;
    }

    MixerLibrary m_sdl;
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
    if (!isRegularFile(path))
        return 0;
    QMetaObject::invokeMethod(
        m_mixer, [mixer = m_mixer, path] { mixer->play(path); }, Qt::QueuedConnection);
    return 1;
}

} // namespace varnhold
