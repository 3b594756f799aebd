#include "gamedb/DatabaseTables.h"

#include "gamedb/SharedDatabase.h"
#include "platform/database/DatabaseCatalog.h"

namespace varnhold {

using namespace Qt::StringLiterals;

bool dbTableExists(const QString& path, const QString& name)
{
    DatabaseConnection connection;
    connection.Open(u"Provider=Microsoft.Jet.OLEDB.4.0;data source="_s + path);
    const bool exists = tableNames(connection).contains(name, Qt::CaseInsensitive);
    connection.Close();
    return exists;
}

void dbRenameTable(const QString& path, const QString& from, const QString& to)
{
    DatabaseConnection connection;
    connection.Open(connectionString(path));
    renameTable(connection, from, to);
    connection.Close();
}

} // namespace varnhold
