#include "gamedb/Statements.h"

#include "state/Settings.h"

namespace varnhold::statements {

using namespace Qt::StringLiterals;

QString gameList(const Settings& settings)
{
    return u"SELECT * FROM "_s + settings.orderText(Order::DBTable) + u" ORDER BY "_s +
           settings.orderText(Order::SearchTable) + u' ' + settings.orderTag(Order::AscDesc);
}

QString entry(const QString& table, const QString& gameId)
{
    return u"SELECT * FROM "_s + table + u" where GameID='"_s + gameId + u"';"_s;
}

QString table(const QString& table)
{
    return u"SELECT * FROM "_s + table;
}

QString update(const QString& table, const QString& gameId)
{
    return u"SELECT * FROM "_s + table + u" Where GameID='"_s + gameId + u'\'';
}

QString deleteEntry(const QString& table, const QString& gameId)
{
    return u"DELETE * FROM "_s + table + u" WHERE GameID='"_s + gameId + u'\'';
}

QString links()
{
    return u"SELECT * FROM PS3Links "_s;
}

QString link(const QString& address)
{
    return u"SELECT * FROM PS3Links Where Link='"_s + address + u'\'';
}

QString deleteLink(const QString& address)
{
    return u"DELETE * FROM PS3Links WHERE Link='"_s + address + u'\'';
}

} // namespace varnhold::statements
