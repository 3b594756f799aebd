#include "gamedb/SharedDatabase.h"

#include "platform/database/DatabaseErrors.h"
#include "state/Settings.h"

namespace varnhold {

using namespace Qt::StringLiterals;

SharedDatabase::SharedDatabase(const Settings& settings, MessageBoxes& boxes, DatabaseWatch* watch)
    : DBConn(watch), m_watch(watch), m_settings(settings), m_boxes(boxes)
{
}

void SharedDatabase::connect()
{
    DBConnFile = m_settings.idList().tag;
    DBConnString = connectionString(DBConnFile);
    DBConn.Open(DBConnString);
}

void SharedDatabase::select(const QString& statement)
{
    SQLText = statement;
    if (!DBRecords)
        DBRecords = std::make_unique<Recordset>();
    DBRecords->Open(SQLText, DBConn);
}

int SharedDatabase::remove(const QString& statement)
{
    SQLText = statement;
    DBCommand.setCommandText(SQLText);
    DBCommand.setActiveConnection(DBConn);
    return DBCommand.Execute();
}

void SharedDatabase::close()
{
    if (DBRecords)
        DBRecords->Close();
    DBConn.Close();
}

void SharedDatabase::report(const RunTimeError& error)
{
    reportError(m_boxes, error, DescriptionLabel::WithBlank);
    // What an earlier report left open has now failed once, as it is meant to; the next routine works again.
    if (error.number() == errors::database::objectOpen)
        release();
}

void SharedDatabase::release()
{
    silently([&] {
        if (DBRecords && DBRecords->isOpen())
            DBRecords->Close();
    });
    silently([&] {
        if (DBConn.isOpen())
            DBConn.Close();
    });
}

QString connectionString(const QString& path)
{
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path + u";Persist Security Info=False"_s;
}

} // namespace varnhold
