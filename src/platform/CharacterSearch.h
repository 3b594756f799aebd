#pragma once

#include <cstddef>

#include <experimental/simd>

namespace varnhold {

/// First place in [from, end) where `match` holds; end when there is none. Looks at as many characters at a
/// time as the processor compares at once, which is what makes it worth having beside QStringView::indexOf:
/// no call and no set-up for hits that lie close together.
/// `match` is handed a function that gives the character at an offset from the place in question, or a block
/// of them, and answers with what == gives; && and || of such answers are allowed. Offsets above 0 may read
/// behind end, where characters must be.
template <typename Match>
const char16_t* findWhere(const char16_t* from, const char16_t* end, const Match& match)
{
    namespace simd = std::experimental;
    using Block = simd::native_simd<char16_t>;
    constexpr auto step = static_cast<std::ptrdiff_t>(Block::size());
    for (; end - from >= step; from += step) {
        const auto hits = match([from](int offset) { return Block(from + offset, simd::element_aligned); });
        if (simd::any_of(hits))
            return from + simd::find_first_set(hits);
    }
    while (from < end && !match([from](int offset) { return from[offset]; }))
        ++from;
    return from;
}

/// First place of a character in [from, end); end when there is none.
inline const char16_t* findCharacter(const char16_t* from, const char16_t* end, char16_t character)
{
    return findWhere(from, end, [character](const auto& at) { return at(0) == character; });
}

} // namespace varnhold
