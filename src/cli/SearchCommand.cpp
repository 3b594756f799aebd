#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/DatabaseAccess.h"
#include "cli/Table.h"
#include "platform/database/DatabaseCatalog.h"
#include "platform/database/Recordset.h"
#include "search/CsvText.h"
#include "search/SearchQuery.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

struct Column
{
    QString heading; ///< of the table, and of CSV
    QString key;     ///< in JSON
};

QList<Column> columnsOf(const SearchQuery& query)
{
    QList<Column> columns = {{u"GameID"_s, u"id"_s}, {u"GameName"_s, u"name"_s}};
    if (query.wantsLinks())
        columns += {{u"PKG"_s, u"version"_s},
                    {u"FW"_s, u"systemVersion"_s},
                    {u"SIZE"_s, u"size"_s},
                    {u"SHA1"_s, u"sha1"_s},
                    {u"Link"_s, u"url"_s}};
    return columns;
}

SearchQuery queryOf(const Arguments& arguments)
{
    const auto choice = [&](const QString& option, const QStringList& choices, int otherwise) {
        if (!arguments.has(option))
            return otherwise;
        const QString text = arguments.value(option);
        const qsizetype found = choices.indexOf(text);
        if (found < 0)
            throw UsageError{u"--%1 takes %2, not \"%3\"."_s.arg(option, choices.join(u" or "_s), text)};
        return static_cast<int>(found);
    };
    SearchQuery query;
    query.text = operandOf(arguments, u"a text to search for"_s);
    query.table = tableOf(arguments, true);
    query.column = choice(u"by"_s, {u"id"_s, u"name"_s}, 1) == 0 ? u"GameID"_s : u"GameName"_s;
    query.match =
        static_cast<SearchQuery::Match>(1 + choice(u"match"_s, {u"whole"_s, u"start"_s, u"any"_s}, 2));
    query.descending = arguments.has(u"descending"_s);
    return query;
}

void print(Terminal& terminal, const Arguments& arguments, const QList<Column>& columns,
           const QList<QStringList>& rows)
{
    QStringList headings;
    for (const Column& column : columns)
        headings.append(column.heading);
    if (arguments.has(u"json"_s)) {
        QJsonArray objects;
        for (const QStringList& row : rows) {
            QJsonObject object;
            for (qsizetype i = 0; i < columns.size(); ++i)
                object.insert(columns.at(i).key, row.at(i).isEmpty() ? QJsonValue() : QJsonValue(row.at(i)));
            objects.append(object);
        }
        terminal.printJson(QJsonDocument(objects));
    } else if (arguments.has(u"csv"_s)) {
        QByteArray bytes = csvRecord(headings);
        for (const QStringList& row : rows)
            bytes += csvRecord(row);
        terminal.printRaw(bytes);
    } else {
        Table table(headings);
        for (const QStringList& row : rows)
            table.addRow(row);
        terminal.print(table.text());
    }
}

void refuseTwoForms(const Arguments& arguments)
{
    if (arguments.has(u"json"_s) && arguments.has(u"csv"_s))
        throw UsageError{u"--json and --csv do not go together."_s};
}

ExitCode runSearch(const Arguments& arguments, Terminal& terminal)
{
    refuseTwoForms(arguments);
    const SearchQuery query = queryOf(arguments);
    DatabaseAccess database(arguments, terminal);
    Recordset records;
    records.Open(query.statement(), database.connection());
    const QList<Column> columns = columnsOf(query);
    QList<QStringList> rows;
    for (; !records.atEnd(); records.MoveNext()) {
        QStringList row;
        for (const Column& column : columns)
            row.append(records.value(column.heading));
        rows.append(row);
    }
    if (!rows.isEmpty() || arguments.has(u"json"_s))
        print(terminal, arguments, columns, rows);
    if (!rows.isEmpty())
        return ExitCode::Fine;
    terminal.complain(u"Nothing was found."_s);
    return ExitCode::NothingFound;
}

ExitCode runTables(const Arguments& arguments, Terminal& terminal)
{
    refuseTwoForms(arguments);
    refuseOperands(arguments);
    DatabaseAccess database(arguments, terminal);
    QList<QStringList> rows;
    for (const QString& name : tableNames(database.connection()))
        rows.append({name});
    print(terminal, arguments, {{u"Table"_s, u"name"_s}}, rows);
    return rows.isEmpty() ? ExitCode::NothingFound : ExitCode::Fine;
}

const Option jsonOption{u"json"_s, u"Print JSON instead of a table."_s};
const Option csvOption{u"csv"_s, u"Comma-separated values instead of a table."_s};

} // namespace

Command searchCommand()
{
    return {u"search"_s,
            u"TEXT"_s,
            u"Searches the database for a title or an id."_s,
            {tableOption(true),
             {u"by"_s, u"id or name; name without it."_s, u"column"_s},
             {u"match"_s, u"whole, start or any; any without it."_s, u"place"_s},
             {u"descending"_s, u"From the last to the first."_s},
             jsonOption,
             csvOption,
             databaseOption()},
            runSearch};
}

Command tablesCommand()
{
    return {u"tables"_s,
            {},
            u"Lists the tables of the database."_s,
            {jsonOption, csvOption, databaseOption()},
            runTables};
}

} // namespace varnhold::cli
