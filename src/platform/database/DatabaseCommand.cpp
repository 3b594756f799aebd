#include "platform/database/DatabaseCommand.h"

#include "platform/database/DatabaseConnection.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/DatabaseStatement.h"
#include "platform/database/RowSnapshot.h"

namespace varnhold {

int DatabaseCommand::Execute()
{
    if (m_connection == nullptr)
        throw databaseError(errors::database::objectClosed);
    DatabaseFile& file = *m_connection->file();
    const DatabaseStatement statement = readStatement(m_text);
    if (statement.kind != DatabaseStatement::Kind::Delete)
        throw databaseError(errors::database::badSyntax);
    const std::shared_ptr<const TableSchema> table = file.table(statement.table);
    (void)table->column(statement.condition->column);

    file.prepareWrite();
    Transaction transaction(file);
    const RowSnapshot rows(file, table, statement);
    for (std::size_t i = 0; i < rows.count(); ++i) {
        EngineStatement remove =
            file.statement("DELETE FROM " + table->quoted + " WHERE " + table->rows.condition(1));
        table->rows.bind(remove, 1, rows.number(i));
        remove.step();
    }
    transaction.commit();
    return static_cast<int>(rows.count());
}

} // namespace varnhold
