#include "search/RowImport.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseStatement.h"
#include "platform/database/Recordset.h"

#include <QSet>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

DatabaseStatement allOf(const QString& table)
{
    return {.kind = DatabaseStatement::Kind::Select, .table = table, .condition = {}, .order = {}};
}

DatabaseStatement rowOf(const QString& table, const QString& id)
{
    DatabaseStatement statement = allOf(table);
    statement.condition = DatabaseStatement::Condition{.column = u"GameID"_s, .value = id};
    return statement;
}

void write(Recordset& records, const QString& id, const QString& name)
{
    records.setValue(u"GameID"_s, id);
    if (!name.isEmpty())
        records.setValue(u"GameName"_s, name);
    records.Update();
}

/// False when the id is known; its insert is then dropped.
bool add(const DatabaseConnection& connection, const QString& table, std::unique_ptr<Recordset>& inserts,
         const QString& id, const QString& name)
{
    if (!inserts) {
        inserts = std::make_unique<Recordset>();
        inserts->Open(allOf(table), connection);
    }
    try {
        inserts->AddNew();
        write(*inserts, id, name);
        return true;
    } catch (const RunTimeError& error) {
        if (error.number() != errors::database::duplicate)
            throw;
        inserts.reset();
        return false;
    }
}

} // namespace

ImportCounts importRows(const DatabaseConnection& connection, const QString& table, const TextRows& rows,
                        const std::function<void(int)>& refused)
{
    ImportCounts counts;
    std::unique_ptr<Recordset> inserts;
    for (int row = 0; row < rows.count(); ++row) {
        const QString id = rows.id(row).toString();
        const QString name = rows.name(row).toString();
        if (id.trimmed().isEmpty()) {
            refused(row);
            continue;
        }
        if (!add(connection, table, inserts, id, name)) {
            Recordset known;
            known.Open(rowOf(table, id), connection);
            write(known, id, name);
            ++counts.updates;
        }
        ++counts.all;
    }
    return counts;
}

ImportCounts countImport(const DatabaseConnection& connection, const QString& table, const TextRows& rows,
                         const std::function<void(int)>& refused)
{
    ImportCounts counts;
    QSet<QString> seen;
    for (int row = 0; row < rows.count(); ++row) {
        const QString id = rows.id(row).toString();
        if (id.trimmed().isEmpty()) {
            refused(row);
            continue;
        }
        // Ids that differ in case only are one.
        const QString folded = id.toCaseFolded();
        bool known = seen.contains(folded);
        if (!known) {
            Recordset records;
            records.Open(rowOf(table, id), connection);
            known = !records.atEnd();
            seen.insert(folded);
        }
        ++counts.all;
        counts.updates += known ? 1 : 0;
    }
    return counts;
}

} // namespace varnhold
