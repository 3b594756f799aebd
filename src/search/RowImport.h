#pragma once

#include "search/TextRows.h"

#include <QList>
#include <QString>

#include <functional>

namespace varnhold {

class DatabaseConnection;

struct ImportCounts
{
    int all = 0;     ///< rows written
    int updates = 0; ///< of ids that were known

    [[nodiscard]] int added() const { return all - updates; }
};

/// Writes rows into a table: a new id is added, the name of a known one is written over, where the row has
/// one. Values are bound, whatever they hold. Each row is stored on its own, so that a failure keeps those
/// before it. `refused` is told the index of a row that has no id. Throws RunTimeError.
ImportCounts importRows(const DatabaseConnection& connection, const QString& table, const TextRows& rows,
                        const std::function<void(int)>& refused);
/// What importRows would do; writes nothing.
ImportCounts countImport(const DatabaseConnection& connection, const QString& table, const TextRows& rows,
                         const std::function<void(int)>& refused);

} // namespace varnhold
