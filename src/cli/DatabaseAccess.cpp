#include "cli/DatabaseAccess.h"

#include "cli/Arguments.h"
#include "gamedb/SharedDatabase.h"
#include "platform/RunTimeError.h"

#include <QFileInfo>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

DatabaseAccess::DatabaseAccess(const Arguments& arguments, Terminal& terminal)
    : m_workspace(arguments, terminal), m_path(arguments.value(u"database"_s))
{
    if (m_path.isEmpty())
        m_path = m_workspace.settings().idList().tag;
    if (m_path.isEmpty())
        throw RunTimeError(errors::fileNotFound,
                           u"The settings name no database; name one with --database."_s);
    // It goes into a connection's text, where this ends it.
    if (m_path.contains(u';'))
        throw RunTimeError(errors::badFileName,
                           u"A database cannot be opened under a name with a \";\": \"%1\"."_s.arg(m_path));
}

const DatabaseConnection& DatabaseAccess::connection()
{
    if (!m_connection.isOpen()) {
        try {
            m_connection.Open(connectionString(m_path));
        } catch (const RunTimeError& error) {
            throw RunTimeError(error.number(), u"\"%1\": %2"_s.arg(m_path, error.description()));
        }
    }
    return m_connection;
}

Option databaseOption()
{
    return {u"database"_s, u"Work on this database instead of the one in the settings."_s, u"file"_s};
}

Option overwriteOption()
{
    return {u"overwrite"_s, u"Replace a file that is there already."_s};
}

Option tableOption(bool withLinks)
{
    return {u"in"_s,
            withLinks ? u"games, personal or links; games without it."_s
                      : u"games or personal; games without it."_s,
            u"table"_s};
}

QString tableOf(const Arguments& arguments, bool withLinks)
{
    const QString name = arguments.has(u"in"_s) ? arguments.value(u"in"_s) : u"games"_s;
    if (name == u"games")
        return u"PS3Games"_s;
    if (name == u"personal")
        return u"PS3Personal"_s;
    if (name == u"links" && withLinks)
        return u"PS3Links"_s;
    throw UsageError{u"--in takes %1, not \"%2\"."_s.arg(
        withLinks ? u"games, personal or links"_s : u"games or personal"_s, name)};
}

QString operandOf(const Arguments& arguments, const QString& what)
{
    if (arguments.operands.isEmpty())
        throw UsageError{u"\"%1\" needs %2."_s.arg(arguments.command->name, what)};
    if (arguments.operands.size() > 1)
        throw UsageError{u"\"%1\" takes one operand; \"%2\" is too much."_s.arg(arguments.command->name,
                                                                                arguments.operands.at(1))};
    return arguments.operands.first();
}

void keepWhatIsThere(const Arguments& arguments, const QString& path)
{
    const QFileInfo target(path);
    if (!arguments.has(u"overwrite"_s) && (target.exists() || target.isSymLink()))
        throw RunTimeError(errors::fileExists,
                           u"\"%1\" is there already and is kept; --overwrite replaces it."_s.arg(path));
}

} // namespace varnhold::cli
