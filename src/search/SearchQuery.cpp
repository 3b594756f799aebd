#include "search/SearchQuery.h"

#include "platform/Trim.h"
#include "platform/database/Recordset.h"

namespace varnhold {

using namespace Qt::StringLiterals;

bool SearchQuery::wantsLinks() const
{
    return table == u"PS3Links";
}

QString SearchQuery::statementText() const
{
    const QString value = trimBlanks(text);
    QString condition;
    switch (match) {
    case Match::Whole:
        condition = u" ='"_s + value + u"'"_s;
        break;
    case Match::Start:
        condition = u" LIKE '"_s + value + u"%'"_s;
        break;
    case Match::Any:
        condition = u" LIKE '%"_s + value + u"%'"_s;
        break;
    }
    return u"SELECT * FROM "_s + table + u" where "_s + column + condition + u" ORDER BY "_s + column +
           (descending ? u" Desc"_s : u" Asc"_s);
}

DatabaseStatement SearchQuery::statement() const
{
    QString value = trimBlanks(text);
    if (match != Match::Whole)
        value += u'%';
    if (match == Match::Any)
        value.prepend(u'%');
    return {.kind = DatabaseStatement::Kind::Select,
            .table = table,
            .condition =
                DatabaseStatement::Condition{column, value,
                                             match == Match::Whole ? DatabaseStatement::Comparison::Equal
                                                                   : DatabaseStatement::Comparison::Like},
            .order = DatabaseStatement::Order{column, descending}};
}

FoundLink foundLinkOf(const Recordset& records)
{
    return {records.value(u"Gameid"_s), records.value(u"GameName"_s), records.value(u"PKG"_s),
            records.value(u"FW"_s),     records.value(u"Size"_s),     records.value(u"SHA1"_s),
            records.value(u"Link"_s)};
}

} // namespace varnhold
