#include "platform/database/DatabaseCatalog.h"

#include "platform/database/DatabaseConnection.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

void rename(DatabaseFile& file, const QString& from, const QString& to)
{
    file.execute("ALTER TABLE " + quotedName(from) + " RENAME TO " + quotedName(to));
}

} // namespace

QStringList tableNames(const DatabaseConnection& connection)
{
    const std::vector<QString> names = connection.file()->tableNames();
    return {names.begin(), names.end()};
}

void renameTable(const DatabaseConnection& connection, const QString& from, const QString& to)
{
    DatabaseFile& file = *connection.file();
    const QString old = file.table(from)->name;
    if (to.isEmpty() || to.contains(QChar(u'\0')) || to.startsWith(u"sqlite_"_s, Qt::CaseInsensitive))
        throw databaseError(errors::database::badSyntax);
    if (to == old)
        return;
    const bool caseOnly = sameName(old, to);
    if (!caseOnly && file.isTaken(to))
        throw databaseError(errors::database::tableExists, to);

    file.prepareWrite();
    Transaction transaction(file);
    if (caseOnly) {
        // The engine takes the new name for the old one's.
        QString between = to + u'_';
        while (file.isTaken(between))
            between += u'_';
        rename(file, old, between);
        rename(file, between, to);
    } else {
        rename(file, old, to);
    }
    transaction.commit();
    file.forgetSchema();
}

} // namespace varnhold
