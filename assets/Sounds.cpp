#include "Sounds.h"

#include "Files.h"

#include <algorithm>
#include <array>

namespace varnhold::assets {

namespace {

// Two short taps on wood for what happens all the time; for the two ends of a session the same four tones
// (A, E, B and C sharp), rising and falling.
constexpr std::array clickNotes{Note{0, 11000, 5200, 1, 9}, Note{1, 17600, 1800, 1, 5}};
constexpr std::array menuNotes{Note{0, 6600, 4200, 3, 22}, Note{55, 8800, 4200, 3, 30}};
constexpr std::array startupNotes{Note{0, 2200, 3600, 24, 190}, Note{110, 3296, 3400, 18, 190},
                                  Note{220, 4939, 3000, 16, 180}, Note{330, 5544, 3200, 16, 210}};
constexpr std::array shutdownNotes{Note{0, 5544, 3000, 16, 150}, Note{110, 4939, 2800, 16, 150},
                                   Note{220, 3296, 3200, 18, 170}, Note{330, 2200, 3600, 22, 190}};

constexpr std::array designs{
    SoundDesign{"click.wav", 90, clickNotes},
    SoundDesign{"menu.wav", 240, menuNotes},
    SoundDesign{"startup.wav", 1150, startupNotes},
    SoundDesign{"shutdown.wav", 1050, shutdownNotes},
};

struct Partial
{
    int multiple; ///< of the fundamental, in hundredths
    int share;    ///< of its level, in hundredths
    int fadesFaster;
};
constexpr std::array partials{Partial{100, 100, 1}, Partial{200, 22, 2}, Partial{301, 8, 3}};

constexpr std::int64_t one = std::int64_t{1} << 30;

constexpr std::int64_t samplesIn(std::int64_t milliseconds)
{
    return milliseconds * sampleRate / 1000;
}

/// The sine of a turn's 2^32nd parts, from -2^30 to 2^30: the polynomial of the fifth degree that strays
/// least from it over a quarter turn.
std::int64_t sine(std::uint32_t turn)
{
    const std::uint32_t quarter = turn >> 30;
    const std::int64_t within = turn & 0x3FFFFFFFU;
    const std::int64_t x = quarter % 2 == 0 ? within : one - within;
    const std::int64_t square = x * x >> 30;
    // 1.5706268, 0.6432292 and 0.0727102 in 2^30ths
    const std::int64_t inner = 690662094 - (square * 78071983 >> 30);
    const std::int64_t value = x * (1686447685 - (square * inner >> 30)) >> 30;
    return std::min(quarter < 2 ? value : -value, one);
}

/// The number that, multiplied in at each sample, halves a level in so many samples.
std::int64_t decayFor(std::int64_t samples)
{
    // 1 - ln 2 / n + (ln 2 / n)^2 / 2, with ln 2 in 2^30ths
    const std::int64_t step = 744261118 / samples;
    return one - step + (step * step >> 31);
}

void add(std::vector<std::int64_t>& mix, const Note& note)
{
    const auto start = static_cast<std::size_t>(samplesIn(note.start));
    const std::int64_t attack = samplesIn(note.attack);
    for (const Partial& partial : partials) {
        const std::int64_t turn =
            (std::int64_t{note.frequency} * partial.multiple << 32) / (std::int64_t{sampleRate} * 1000);
        const std::int64_t decay = decayFor(samplesIn(note.half) / partial.fadesFaster);
        std::int64_t level = one;
        std::uint32_t phase = 0;
        for (std::size_t i = start; i < mix.size(); ++i) {
            const auto since = static_cast<std::int64_t>(i - start);
            const std::int64_t swell = since < attack ? one * since / attack : one;
            const std::int64_t strength = (level * swell >> 30) * note.level * partial.share / 100;
            mix[i] += (sine(phase) >> 15) * (strength >> 15) >> 15;
            level = level * decay >> 30;
            phase += static_cast<std::uint32_t>(turn);
        }
    }
}

} // namespace

std::span<const SoundDesign> soundDesigns()
{
    return designs;
}

std::vector<std::int16_t> play(const SoundDesign& sound)
{
    std::vector<std::int64_t> mix(static_cast<std::size_t>(samplesIn(sound.length)));
    for (const Note& note : sound.notes)
        add(mix, note);
    const auto length = static_cast<std::int64_t>(mix.size());
    const std::int64_t fade = length / 10;
    std::vector<std::int16_t> samples;
    samples.reserve(mix.size());
    for (std::int64_t i = 0; i < length; ++i) {
        // The levels are in 2^15ths of a step.
        std::int64_t value = mix[static_cast<std::size_t>(i)] >> 15;
        value = value * std::min(fade, length - 1 - i) / fade;
        samples.push_back(static_cast<std::int16_t>(std::clamp<std::int64_t>(value, -32767, 32767)));
    }
    return samples;
}

} // namespace varnhold::assets
