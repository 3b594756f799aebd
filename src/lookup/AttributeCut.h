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
/// Pieces after number 32768 are not kept, since no row index reaches them. Views into the text given.
class AttributeCut
{
public:
    explicit AttributeCut(QStringView text);

    [[nodiscard]] const std::vector<QStringView>& values(PackageAttribute attribute) const
    {
        return m_values[static_cast<std::size_t>(attribute)];
    }

private:
    void addPiece(QStringView text, std::size_t attribute, qsizetype markerStart, qsizetype valueStart);

    std::array<std::vector<QStringView>, static_cast<std::size_t>(PackageAttribute::Count)> m_values;
};

/// Takes every declaration's opening (with the two blanks of the tree text before it), then every CR LF out
/// of the text, so that it begins with a double quote and its piece 0 is empty.
void stripViewerMarks(QString& text);

} // namespace varnhold
