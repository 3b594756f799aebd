#include "platform/database/DatabaseConnection.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// A path may hold a ";": it ends before the one part that ever follows it.
QString dataSource(const QString& connectionString)
{
    qsizetype start = -1;
    for (const auto& name : {u"Data Source="_s, u"Dbq="_s}) {
        const qsizetype found = connectionString.indexOf(name, 0, Qt::CaseInsensitive);
        if (found == 0 || (found > 0 && connectionString[found - 1] == u';')) {
            start = found + name.size();
            break;
        }
    }
    if (start < 0)
        return {};
    qsizetype end = connectionString.indexOf(u";Persist Security Info="_s, start, Qt::CaseInsensitive);
    if (end < 0)
        end = connectionString.size();
    if (end > start && connectionString[end - 1] == u';')
        --end;
    return connectionString.mid(start, end - start);
}

} // namespace

DatabaseConnection::DatabaseConnection(DatabaseWatch* watch) : m_watch(watch) {}

DatabaseConnection::~DatabaseConnection()
{
    if (isOpen())
        m_file->close();
}

void DatabaseConnection::Open(const QString& connectionString)
{
    if (isOpen())
        throw databaseError(errors::database::objectOpen);
    m_file = std::make_shared<DatabaseFile>(dataSource(connectionString), m_watch);
}

void DatabaseConnection::Close()
{
    file()->close();
    m_file.reset();
}

bool DatabaseConnection::isOpen() const
{
    return m_file && m_file->isOpen();
}

const std::shared_ptr<DatabaseFile>& DatabaseConnection::file() const
{
    if (!isOpen())
        throw databaseError(errors::database::objectClosed);
    return m_file;
}

} // namespace varnhold
