// Lists of ids and titles, out of the database and into it.

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/DatabaseAccess.h"
#include "platform/ReadFile.h"
#include "platform/ReplaceFile.h"
#include "platform/RunTimeError.h"
#include "platform/database/Recordset.h"
#include "search/CsvText.h"
#include "search/ListText.h"
#include "search/RowImport.h"
#include "search/SearchQuery.h"

#include <QFile>

#include <algorithm>
#include <cstdio>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostBytes = 512 * 1024 * 1024;
constexpr int longestLine = 100'000'000;

QByteArray standardInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        throw RunTimeError(errors::pathFileAccess, u"Standard input cannot be read."_s);
    QByteArray bytes = input.read(mostBytes + 1);
    if (bytes.size() > mostBytes)
        throw RunTimeError(errors::outOfMemory, u"Standard input is too large."_s);
    return bytes;
}

QByteArray bytesOf(const QString& file)
{
    if (file == u"-")
        return standardInput();
    try {
        return readFile(file, mostBytes);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), u"\"%1\": %2"_s.arg(file, error.description()));
    }
}

QByteArray csvOf(Recordset& records, bool links)
{
    QStringList columns{u"GameID"_s, u"GameName"_s};
    if (links)
        columns += {u"PKG"_s, u"FW"_s, u"SIZE"_s, u"SHA1"_s, u"Link"_s};
    QByteArray bytes = csvRecord(columns);
    for (; !records.atEnd(); records.MoveNext()) {
        QStringList fields;
        for (const QString& column : std::as_const(columns))
            fields.append(records.value(column));
        bytes += csvRecord(fields);
    }
    return bytes;
}

QByteArray linesOf(Recordset& records)
{
    TextRows rows;
    for (; !records.atEnd(); records.MoveNext())
        rows.append(records.value(u"GameID"_s), records.value(u"GameName"_s));
    return listBytes(rows);
}

ExitCode runExport(const Arguments& arguments, Terminal& terminal)
{
    const QString file = operandOf(arguments, u"a file to write, or \"-\""_s);
    const QString table = tableOf(arguments, true);
    if (file != u"-")
        keepWhatIsThere(arguments, file);
    DatabaseAccess database(arguments, terminal);
    Recordset records;
    records.Open(DatabaseStatement{.kind = DatabaseStatement::Kind::Select,
                                   .table = table,
                                   .condition = {},
                                   .order = DatabaseStatement::Order{.column = u"GameID"_s}},
                 database.connection());
    const int count = records.RecordCount();
    const QByteArray bytes =
        arguments.has(u"csv"_s) ? csvOf(records, table == u"PS3Links") : linesOf(records);
    if (file == u"-") {
        terminal.printRaw(bytes);
        return ExitCode::Fine;
    }
    try {
        replaceFile(file, bytes);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), u"\"%1\": %2"_s.arg(file, error.description()));
    }
    terminal.print(printable(u"%1: %2 rows of %3."_s.arg(file).arg(count).arg(table)));
    return ExitCode::Fine;
}

/// Rows with the line that each stands on.
struct NumberedRows
{
    TextRows rows;
    QList<qsizetype> lines;
    QList<qsizetype> refused; ///< lines that are no rows at all
};

NumberedRows readLines(const QString& text, const ListFormat& format)
{
    NumberedRows read;
    ListCutter cutter(format);
    qsizetype line = 0;
    forEachLine(text, [&](QStringView content) {
        cutter.cut(content, read.rows);
        read.lines.append(++line);
    });
    return read;
}

NumberedRows readRecords(const QString& text)
{
    NumberedRows read;
    CsvReader reader(text);
    qsizetype idField = 0;
    qsizetype nameField = 1;
    const auto isColumn = [](const QString& field, const QString& name) {
        return field.trimmed().compare(name, Qt::CaseInsensitive) == 0;
    };
    for (bool first = true; reader.next(); first = false) {
        const QStringList& fields = reader.fields();
        const auto find = [&](const QString& name) {
            const auto found =
                std::ranges::find_if(fields, [&](const QString& field) { return isColumn(field, name); });
            return found == fields.end() ? -1 : std::distance(fields.begin(), found);
        };
        if (first && find(u"GameID"_s) >= 0) { // a heading
            idField = find(u"GameID"_s);
            nameField = find(u"GameName"_s);
            continue;
        }
        if (reader.isBroken()) {
            read.refused.append(reader.line());
            continue;
        }
        read.rows.append(fields.value(idField), nameField < 0 ? QString() : fields.value(nameField));
        read.lines.append(reader.line());
    }
    return read;
}

NumberedRows readList(const Arguments& arguments, const QString& file)
{
    const ListFormat usual;
    const bool csv = arguments.has(u"csv"_s);
    if (csv && (arguments.has(u"left"_s) || arguments.has(u"right"_s)))
        throw UsageError{u"--csv has no margins; --left and --right do not go with it."_s};
    const ListFormat format{numberOf(arguments, u"left"_s, 1, longestLine, usual.left),
                            numberOf(arguments, u"right"_s, 1, longestLine, usual.right),
                            {}};
    const QString text = decodedList(bytesOf(file));
    return csv ? readRecords(text) : readLines(text, format);
}

QString numbersOf(QList<qsizetype> lines)
{
    std::ranges::sort(lines);
    QStringList numbers;
    for (const qsizetype line : std::as_const(lines))
        numbers.append(QString::number(line));
    return numbers.join(u", "_s);
}

ExitCode runImport(const Arguments& arguments, Terminal& terminal)
{
    const QString file = operandOf(arguments, u"a file to read, or \"-\""_s);
    if (!arguments.has(u"in"_s))
        throw UsageError{u"\"import\" needs --in games or --in personal."_s};
    const QString table = tableOf(arguments, false);
    NumberedRows read = readList(arguments, file);
    DatabaseAccess database(arguments, terminal);
    const bool dry = arguments.has(u"dry-run"_s);
    const ImportCounts counts = (dry ? countImport : importRows)(
        database.connection(), table, read.rows, [&](int row) { read.refused.append(read.lines.at(row)); });
    terminal.print(
        u"All: %1\nUpdates: %2\nNew Entries: %3"_s.arg(counts.all).arg(counts.updates).arg(counts.added()));
    if (dry)
        terminal.print(u"Nothing was written."_s);
    if (!read.refused.isEmpty())
        terminal.complain(
            u"Refused, without an id or with an open quote, line %1."_s.arg(numbersOf(read.refused)));
    return counts.all > 0 ? ExitCode::Fine : ExitCode::NothingFound;
}

} // namespace

Command exportCommand()
{
    return {u"export"_s,
            u"FILE"_s,
            u"Writes ids and titles to a list; \"-\" is standard output."_s,
            {tableOption(true),
             {u"csv"_s, u"Comma-separated values with a heading."_s},
             overwriteOption(),
             databaseOption()},
            runExport};
}

Command importCommand()
{
    return {u"import"_s,
            u"FILE"_s,
            u"Adds a list of ids and titles; \"-\" is standard input."_s,
            {tableOption(false),
             {u"left"_s, u"The id is the first so many characters of a line; 9 without it."_s, u"number"_s},
             {u"right"_s, u"The title starts at this character; 11 without it."_s, u"number"_s},
             {u"csv"_s, u"Read comma-separated values."_s},
             {u"dry-run"_s, u"Count, and write nothing."_s},
             databaseOption()},
            runImport};
}

} // namespace varnhold::cli
