#include "platform/database/TextPattern.h"

#include "platform/database/TextFolding.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>

namespace varnhold {

namespace {

constexpr std::size_t none = std::string_view::npos;
/// Up to so many characters are compared at each place; GapSearch pays for more.
constexpr std::size_t fewCharacters = 64;

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// The character at `at`, which moves behind it. Folded text is sound UTF-8.
char32_t nextCharacter(std::string_view text, std::size_t& at)
{
    const auto lead = static_cast<unsigned char>(text[at++]);
    char32_t character = lead < 0x80   ? lead
                         : lead < 0xE0 ? lead & 0x1Fu
                         : lead < 0xF0 ? lead & 0x0Fu
                                       : lead & 7u;
    while (at < text.size() && continuesCharacter(text[at]))
        character = character << 6 | (static_cast<unsigned char>(text[at++]) & 0x3Fu);
    return character;
}

/// Where a search for characters with gaps stands: bit i of the state says that the first i + 1 of them match
/// what was read last. One step for all of them at once keeps the search linear.
class GapSearch
{
public:
    GapSearch(const std::vector<char32_t>& characters, char32_t any)
        : m_any((characters.size() + 63) / 64), m_state(m_any.size()), m_last(characters.size() - 1)
    {
        for (std::size_t i = 0; i < characters.size(); ++i) {
            const quint64 bit = quint64{1} << (i % 64);
            if (characters[i] == any) {
                m_any[i / 64] |= bit;
                continue;
            }
            std::vector<Places>& places = m_places[characters[i]];
            if (places.empty() || places.back().word != i / 64)
                places.push_back({i / 64, 0});
            places.back().bits |= bit;
        }
    }

    /// True when all of them match.
    bool read(char32_t character)
    {
        quint64 carry = 1;
        for (quint64& word : m_state) {
            const quint64 top = word >> 63;
            word = word << 1 | carry;
            carry = top;
        }
        m_shifted = m_state;
        for (std::size_t i = 0; i < m_state.size(); ++i)
            m_state[i] &= m_any[i];
        if (const auto found = m_places.find(character); found != m_places.end()) {
            for (const Places& places : found->second)
                m_state[places.word] |= m_shifted[places.word] & places.bits;
        }
        return (m_state[m_last / 64] >> (m_last % 64) & 1) != 0;
    }

private:
    struct Places
    {
        std::size_t word;
        quint64 bits;
    };

    std::unordered_map<char32_t, std::vector<Places>> m_places;
    std::vector<quint64> m_any;
    std::vector<quint64> m_state;
    std::vector<quint64> m_shifted;
    std::size_t m_last;
};

} // namespace

TextPattern::TextPattern(QByteArrayView utf8)
{
    const std::string pattern = folded(utf8);
    const std::string_view all = pattern;
    m_matchesAll = !all.empty() && all.find_first_not_of('%') == none;
    std::size_t start = 0;
    for (std::size_t end = 0; (end = all.find('%', start)) != none; start = end + 1) {
        Piece piece = pieceOf(all.substr(start, end - start));
        if (!m_hasWildcard)
            m_first = std::move(piece);
        else if (!piece.isEmpty())
            m_between.push_back(std::move(piece));
        m_hasWildcard = true;
    }
    (m_hasWildcard ? m_last : m_first) = pieceOf(all.substr(start));
}

TextPattern::Piece TextPattern::pieceOf(std::string_view folded)
{
    Piece piece;
    if (folded.find('_') == none) {
        piece.text = folded;
        return piece;
    }
    for (std::size_t at = 0; at < folded.size();) {
        const char32_t character = nextCharacter(folded, at);
        piece.characters.push_back(character == U'_' ? anyCharacter : character);
    }
    return piece;
}

bool TextPattern::matches(QByteArrayView utf8) const
{
    if (m_matchesAll)
        return true;
    m_folded.clear();
    appendFolded(m_folded, utf8);
    return matchesFolded(m_folded);
}

bool TextPattern::matchesFolded(std::string_view text) const
{
    std::size_t from = endOf(m_first, text, 0);
    if (from == none || !m_hasWildcard)
        return from == text.size();
    const std::size_t last = startAtEnd(m_last, text);
    if (last == none || last < from)
        return false;
    text = text.substr(0, last);
    return std::all_of(m_between.begin(), m_between.end(), [&](const Piece& piece) {
        from = findEnd(piece, text, from);
        return from != none;
    });
}

/// Where the piece ends when it stands at `from`.
std::size_t TextPattern::endOf(const Piece& piece, std::string_view text, std::size_t from)
{
    if (piece.characters.empty())
        return text.substr(from).starts_with(piece.text) ? from + piece.text.size() : none;
    return endOf(piece.characters, text, from);
}

std::size_t TextPattern::endOf(const std::vector<char32_t>& characters, std::string_view text,
                               std::size_t from)
{
    for (const char32_t character : characters) {
        if (from == text.size())
            return none;
        const char32_t found = nextCharacter(text, from);
        if (character != anyCharacter && character != found)
            return none;
    }
    return from;
}

/// Where the piece begins when it ends the text.
std::size_t TextPattern::startAtEnd(const Piece& piece, std::string_view text)
{
    if (piece.characters.empty())
        return text.ends_with(piece.text) ? text.size() - piece.text.size() : none;
    std::size_t start = text.size();
    for (std::size_t left = piece.characters.size(); left > 0; --left) {
        if (start == 0)
            return none;
        do
            --start;
        while (continuesCharacter(text[start]));
    }
    return endOf(piece, text, start) == none ? none : start;
}

/// Where the first such piece from `from` on ends.
std::size_t TextPattern::findEnd(const Piece& piece, std::string_view text, std::size_t from)
{
    if (!piece.characters.empty())
        return findEndOfCharacters(piece.characters, text, from);
    // Linear whatever the piece is, as a search of the standard library is not.
    const void* const found =
        memmem(text.data() + from, text.size() - from, piece.text.data(), piece.text.size());
    if (found == nullptr)
        return none;
    return static_cast<std::size_t>(static_cast<const char*>(found) - text.data()) + piece.text.size();
}

std::size_t TextPattern::findEndOfCharacters(const std::vector<char32_t>& characters, std::string_view text,
                                             std::size_t from)
{
    if (characters.size() <= fewCharacters) {
        for (; from < text.size(); nextCharacter(text, from)) {
            if (const std::size_t end = endOf(characters, text, from); end != none)
                return end;
        }
        return none;
    }
    GapSearch search(characters, anyCharacter);
    while (from < text.size()) {
        if (search.read(nextCharacter(text, from)))
            return from;
    }
    return none;
}

} // namespace varnhold
