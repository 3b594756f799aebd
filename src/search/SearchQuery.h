#pragma once

#include "platform/database/DatabaseStatement.h"

#include <QString>

namespace varnhold {

/// What is looked for. Only the one column is searched, never the notes. "%" and "_" in the text are
/// wildcards of the engine, but not in a search for the whole column.
struct SearchQuery
{
    enum class Match {
        Whole = 1, ///< the whole column, not a word in it
        Start = 2,
        Any = 3,
    };

    QString table;
    QString column;
    Match match = Match::Any;
    bool descending = false;
    QString text; ///< blanks at its ends do not count

    [[nodiscard]] bool wantsLinks() const;
    /// As the window runs it: an apostrophe in the text breaks it, which is meant.
    [[nodiscard]] QString statementText() const;
    /// The same with the text bound, whatever it holds.
    [[nodiscard]] DatabaseStatement statement() const;
};

/// A row of PS3Links.
struct FoundLink
{
    QString gameId;
    QString gameName;
    QString package;
    QString systemVersion;
    QString size;
    QString sha1;
    QString link;
};

class Recordset;

/// Of the current record.
FoundLink foundLinkOf(const Recordset& records);

} // namespace varnhold
