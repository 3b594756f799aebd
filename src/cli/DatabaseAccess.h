#pragma once

#include "cli/Command.h"
#include "cli/Workspace.h"
#include "platform/database/DatabaseConnection.h"

#include <QString>

namespace varnhold::cli {

/// The database that a command works on: the one of --database, else the settings'. Starts nothing.
class DatabaseAccess
{
public:
    /// Throws RunTimeError with a sentence where there is none.
    DatabaseAccess(const Arguments& arguments, Terminal& terminal);

    [[nodiscard]] Workspace& workspace() { return m_workspace; }
    [[nodiscard]] Terminal& terminal() { return m_workspace.terminal(); }
    [[nodiscard]] const QString& path() const { return m_path; }
    /// Opened at the first call; throws RunTimeError with a sentence.
    [[nodiscard]] const DatabaseConnection& connection();

private:
    Workspace m_workspace;
    QString m_path;
    DatabaseConnection m_connection;
};

Option databaseOption();
Option overwriteOption();
Option tableOption(bool withLinks);

/// The table that --in names, PS3Games without it. Throws UsageError.
QString tableOf(const Arguments& arguments, bool withLinks);
/// The single operand. Throws UsageError.
QString operandOf(const Arguments& arguments, const QString& what);
/// Throws RunTimeError with a sentence where something stands at `path` and --overwrite is not given.
void keepWhatIsThere(const Arguments& arguments, const QString& path);

} // namespace varnhold::cli
