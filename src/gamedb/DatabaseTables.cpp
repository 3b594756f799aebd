#include "gamedb/DatabaseTables.h"

#include "gamedb/SharedDatabase.h"
#include "platform/database/DatabaseCatalog.h"

namespace varnhold {

using namespace Qt::StringLiterals;

bool dbTableExists(const QString& path, const QString& name, DatabaseWatch* watch)
{
    DatabaseConnection connection(watch);
    connection.Open(u"Provider=Microsoft.Jet.OLEDB.4.0;data source="_s + path);
    const bool exists = tableNames(connection).contains(name, Qt::CaseInsensitive);
    connection.Close();
    return exists;
}

void dbRenameTable(const QString& path, const QString& from, const QString& to, DatabaseWatch* watch)
{
    DatabaseConnection connection(watch);
    connection.Open(connectionString(path));
    renameTable(connection, from, to);
    connection.Close();
}

} // namespace varnhold
