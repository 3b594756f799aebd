#pragma once

#include <QString>

namespace varnhold {

class DatabaseConnection;

/// A statement that returns no rows. The program's one shape: DELETE * FROM table WHERE column='value' [;]
class DatabaseCommand
{
public:
    void setCommandText(const QString& statement) { m_text = statement; }
    void setActiveConnection(const DatabaseConnection& connection) { m_connection = &connection; }
    /// Number of rows deleted. RunTimeError 3704 without an open connection, else as Recordset::Open and
    /// Update.
    int Execute();

private:
    QString m_text;
    const DatabaseConnection* m_connection = nullptr;
};

} // namespace varnhold
