#pragma once

#include <QString>

#include <span>

namespace varnhold {

/// The glyphs that frmMenu holds, in the order in which they are loaded: a missing one ends the run there.
struct GlyphArray
{
    const char* name; ///< "Picture1" to "Picture8"
    std::span<const char* const> files;
};
std::span<const GlyphArray> glyphArrays();

struct MenuGlyph
{
    const char* entry; ///< an action's object name; all entries of an array share one row
    const char* file;
};
std::span<const MenuGlyph> menuGlyphs();

/// The picture of a menu entry, its index taken off; null for an entry without one.
const char* glyphOf(QStringView entry);

} // namespace varnhold
