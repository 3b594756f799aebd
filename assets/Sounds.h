#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace varnhold::assets {

/// A struck tone: a fundamental with two quieter, faster fading partials.
struct Note
{
    int start;     ///< milliseconds
    int frequency; ///< tenths of a hertz
    int level;     ///< of 32767
    int attack;    ///< milliseconds
    int half;      ///< milliseconds in which the tone falls to half its strength
};

struct SoundDesign
{
    std::string_view file;
    int length; ///< milliseconds; the last tenth fades to nothing
    std::span<const Note> notes;
};

std::span<const SoundDesign> soundDesigns();

/// The samples, the same on every machine: whole numbers only.
std::vector<std::int16_t> play(const SoundDesign& sound);

} // namespace varnhold::assets
