#include "platform/database/DatabaseErrors.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

QString textOf(int number)
{
    namespace db = errors::database;
    switch (number) {
    case db::locked:
        return u"The database is locked by another program."_s;
    case db::unknownColumn:
        return u"The table has no such column:"_s;
    case db::badSyntax:
        return u"The statement has a syntax error."_s;
    case db::duplicate:
        return u"The record was not stored: another one has the same value in a column that takes each value "
               "only once."_s;
    case db::missingTable:
        return u"The database has no such table:"_s;
    case db::tableExists:
        return u"The database has a table of that name already:"_s;
    case db::cannotOpen:
        return u"The database cannot be opened:"_s;
    case db::noCurrentRecord:
        return u"The operation needs a current record: there is none, or it was deleted."_s;
    case db::notAllowed:
        return u"The operation is not allowed here."_s;
    case db::objectClosed:
        return u"The operation is not allowed on an object that is closed."_s;
    case db::objectOpen:
        return u"The operation is not allowed on an object that is open."_s;
    default:
        return u"Database error"_s;
    }
}

} // namespace

RunTimeError databaseError(int number, const QString& name)
{
    QString text = textOf(number);
    if (text.endsWith(u':'))
        text += u" '"_s + name + u"'"_s;
    return {number, text};
}

} // namespace varnhold
