#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <vector>

namespace varnhold {

/// The attributes of a package that the update document's text is cut at.
enum class PackageAttribute { Version, SystemVersion, Size, Sha1, Url, Count };

/// What cutting a text at each attribute's marker gives: for every piece in its order, the text up to the
/// first double quote, or all of it when it has none. Piece 0 is what stands before the first marker.
/// Pieces after number 32768 are not kept, since no row index reaches them.
///
/// All is done in one walk, so that a large document goes through the processor's cache once: each stretch of
/// text is copied without the viewer's marks, then cut while it is near.
class AttributeCut
{
public:
    /// Rewrites the text first: takes every declaration's opening (with the two blanks of the tree text
    /// before it), then every CR LF out of it, so that it begins with a double quote and its piece 0 is
    /// empty. The values are views into the rewritten text.
    explicit AttributeCut(QString& text);

    [[nodiscard]] const std::vector<QStringView>& values(PackageAttribute attribute) const
    {
        return m_values[static_cast<std::size_t>(attribute)];
    }
    /// Where the first title tag begins in the text; -1 when there is none.
    [[nodiscard]] qsizetype titleStart() const { return m_titleStart; }

private:
    static constexpr std::size_t attributes = static_cast<std::size_t>(PackageAttribute::Count);
    static constexpr std::size_t front = attributes; ///< the open value is piece 0 of every attribute
    static constexpr std::size_t none = attributes + 1;

    void cutUpTo(const char16_t* end);
    void findTitleUpTo(const char16_t* end);
    void openValue(std::size_t attribute);
    void closeValue(const char16_t* end);

    std::array<std::vector<QStringView>, attributes> m_values;
    const char16_t* m_begin;         ///< of the rewritten text
    const char16_t* m_next;          ///< where the cut goes on
    const char16_t* m_nextTitle;     ///< where the search for the title goes on
    const char16_t* m_valueStart;    ///< of the open value
    std::size_t m_openValue = front; ///< the attribute whose value has not ended yet
    qsizetype m_titleStart = -1;
};

} // namespace varnhold
