#pragma once

#include <QString>

#include <span>

namespace varnhold {

/// One row of the menu tree: a popup (no parent), a submenu, an entry or a separator (caption "-").
struct MenuRow
{
    enum Flag : unsigned {
        Plain = 0,
        Submenu = 1,
        Hidden = 2,    ///< at first
        Checkable = 4, ///< checked by its routine, not by the click
        Array = 8,     ///< entry 0 of an array that is filled at run time, and hidden for good
    };

    const char* name; ///< an array's without its index
    const char* caption;
    const char* parent; ///< "" for a popup
    unsigned flags = Plain;

    [[nodiscard]] bool is(Flag flag) const { return (flags & flag) != 0; }
    [[nodiscard]] bool isPopup() const { return *parent == '\0'; }
    [[nodiscard]] bool isSeparator() const { return !is(Array) && QLatin1StringView(caption) == u'-'; }
};

/// All popups with their entries, in their order; a parent stands before its entries.
std::span<const MenuRow> menuTree();

} // namespace varnhold
