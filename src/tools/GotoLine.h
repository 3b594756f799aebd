#pragma once

#include <QString>

namespace varnhold {

/// Where the number in txtLine leads.
struct GotoLine
{
    enum class Kind {
        Nowhere, ///< no number, or one that a line number cannot be
        OwnLine, ///< the start of the line that the caret is on
        End,     ///< of the text
        Line,    ///< the start of `line`, or the end of a text that has fewer
    };

    Kind kind = Kind::Nowhere;
    int line = 0; ///< from 0

    static GotoLine from(const QString& text);
    bool operator==(const GotoLine&) const = default;
};

} // namespace varnhold
