#pragma once

#include "platform/RunTimeError.h"
#include "platform/database/DatabaseConnection.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/Recordset.h"
#include "support/ErrorNumber.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

namespace varnhold::test {

namespace db = errors::database;

inline QString connectionTo(const QString& path)
{
    return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path +
           QStringLiteral(";Persist Security Info=False");
}

/// A database of the known schema in a folder of its own.
class DatabaseTest : public testing::Test
{
protected:
    /// Opens the connection and a recordset on it.
    void open(const QString& statement)
    {
        if (!connection.isOpen())
            connection.Open(connectionTo(file.path()));
        if (records.isOpen())
            records.Close();
        records.Open(statement, connection);
    }
    /// GameIDs that a statement answers, in its order.
    QStringList ids(const QString& statement)
    {
        open(statement);
        QStringList values;
        for (; !records.atEnd(); records.MoveNext())
            values << records.value(QStringLiteral("GameID"));
        return values;
    }
    [[nodiscard]] QStringList stored(const QString& sql) const { return file.column(sql); }

    TempRoot root;
    TestDatabase file{root.path(QStringLiteral("Game'DB;1.mdb"))};
    DatabaseConnection connection;
    Recordset records;
};

} // namespace varnhold::test
