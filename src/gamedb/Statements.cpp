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

QString links()
{
    return u"SELECT * FROM PS3Links "_s;
}

QString link(const QString& address)
{
    return u"SELECT * FROM PS3Links Where Link='"_s + address + u'\'';
}

} // namespace varnhold::statements
