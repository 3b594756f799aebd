#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/DatabaseAccess.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"
#include "platform/database/DatabaseCompaction.h"
#include "platform/database/DatabaseCopy.h"

#include <QFileInfo>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

QString sizeOf(const QString& path)
{
    return u"%1 bytes"_s.arg(QFileInfo(path).size());
}

template <typename Body> void naming(const QString& path, Body&& body)
{
    try {
        body();
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), u"\"%1\": %2"_s.arg(path, error.description()));
    }
}

/// Where the window puts its copy.
QString usualTarget(const Paths& paths)
{
    const QString folder = paths.root + u"/Backup"_s;
    if (!FolderExists(folder))
        MakeFolder(folder);
    return folder + u"/GameDB.mdb"_s;
}

ExitCode runBackup(const Arguments& arguments, Terminal& terminal)
{
    const bool named = !arguments.operands.isEmpty();
    if (named)
        keepWhatIsThere(arguments, operandOf(arguments, u"a file"_s));
    DatabaseAccess database(arguments, terminal);
    (void)database.connection(); // what is no database is no backup
    const QString target = named ? arguments.operands.first() : usualTarget(database.workspace().paths());
    naming(target, [&] { copyDatabaseFile(database.path(), target); });
    terminal.print(printable(u"%1: %2"_s.arg(target, sizeOf(target))));
    return ExitCode::Fine;
}

ExitCode runCompact(const Arguments& arguments, Terminal& terminal)
{
    refuseOperands(arguments);
    const DatabaseAccess database(arguments, terminal);
    const QString& path = database.path();
    const QString before = sizeOf(path);
    naming(path, [&] { compactDatabaseFile(path); });
    terminal.print(printable(u"%1: before %2, after %3"_s.arg(path, before, sizeOf(path))));
    return ExitCode::Fine;
}

} // namespace

Command backupCommand()
{
    return {u"backup"_s,
            u"[FILE]"_s,
            u"Copies the database, as it stands at one moment."_s,
            {overwriteOption(), databaseOption()},
            runBackup};
}

Command compactCommand()
{
    return {
        u"compact"_s, {}, u"Writes the database anew without its holes."_s, {databaseOption()}, runCompact};
}

} // namespace varnhold::cli
