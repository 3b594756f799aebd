#pragma once

#include <QByteArrayView>

#include <string>
#include <string_view>
#include <vector>

namespace varnhold {

/// A pattern of the search: "%" stands for any text, "_" for any one character, all else for itself, without
/// regard to case as in TextFolding. Each piece between two "%" is looked for once, in time that grows with
/// the text, so that no pattern takes long.
class TextPattern
{
public:
    explicit TextPattern(QByteArrayView utf8);

    [[nodiscard]] bool matches(QByteArrayView utf8) const;
    /// What has no value matches the pattern for everything: "%" alone, as often as one likes.
    [[nodiscard]] bool matchesNull() const { return m_matchesAll; }

private:
    static constexpr char32_t anyCharacter = 0xFFFFFFFF;

    /// What stands between two "%".
    struct Piece
    {
        std::string text;                 ///< folded, when it has no "_"
        std::vector<char32_t> characters; ///< folded, when it has one

        [[nodiscard]] bool isEmpty() const { return text.empty() && characters.empty(); }
    };

    static Piece pieceOf(std::string_view folded);
    static std::size_t endOf(const Piece& piece, std::string_view text, std::size_t from);
    static std::size_t endOf(const std::vector<char32_t>& characters, std::string_view text,
                             std::size_t from);
    static std::size_t startAtEnd(const Piece& piece, std::string_view text);
    static std::size_t findEnd(const Piece& piece, std::string_view text, std::size_t from);
    static std::size_t findEndOfCharacters(const std::vector<char32_t>& characters, std::string_view text,
                                           std::size_t from);
    [[nodiscard]] bool matchesFolded(std::string_view text) const;

    bool m_hasWildcard = false; ///< a "%" is there
    bool m_matchesAll = false;
    Piece m_first; ///< before the first "%"; the whole pattern where there is none
    Piece m_last;  ///< after the last "%"
    std::vector<Piece> m_between;
    mutable std::string m_folded;
};

} // namespace varnhold
