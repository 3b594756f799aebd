// Reading damaged statements.

#include "fuzz/FuzzTarget.h"
#include "platform/RunTimeError.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseStatement.h"

#include <algorithm>
#include <optional>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

std::optional<DatabaseStatement> tryRead(const QString& text, const QByteArray& input)
{
    try {
        return readStatement(text);
    } catch (const RunTimeError& error) {
        require(error.number() == errors::database::badSyntax, "another error", input);
        return {};
    }
}

bool isWord(const QString& text)
{
    return !text.isEmpty() &&
           std::ranges::all_of(text, [](QChar c) { return c.isLetterOrNumber() || c == u'_'; });
}

QString written(const DatabaseStatement& statement)
{
    const bool deletes = statement.kind == DatabaseStatement::Kind::Delete;
    QString text = (deletes ? u"DELETE * FROM "_s : u"SELECT * FROM "_s) + statement.table;
    if (statement.condition) {
        const bool like = statement.condition->comparison == DatabaseStatement::Comparison::Like;
        text += u" where "_s + statement.condition->column + (like ? u" LIKE '"_s : u" ='"_s) +
                statement.condition->value + u'\'';
    }
    if (statement.order)
        text += u" ORDER BY "_s + statement.order->column +
                (statement.order->descending ? u" Desc"_s : u" Asc"_s);
    return text;
}

void checkStatement(const QString& text, const QByteArray& input)
{
    const std::optional<DatabaseStatement> read = tryRead(text, input);
    if (!read)
        return;
    require(isWord(read->table), "a table that is no word", input);
    require(!read->condition || isWord(read->condition->column), "a column that is no word", input);
    require(!read->order || isWord(read->order->column), "an order that is no word", input);
    require(!read->condition || !read->condition->value.contains(u'\''), "a value that ends earlier", input);
    if (read->kind == DatabaseStatement::Kind::Delete)
        require(read->condition && !read->order &&
                    read->condition->comparison == DatabaseStatement::Comparison::Equal,
                "a delete of more than was named", input);
    const std::optional<DatabaseStatement> again = tryRead(written(*read), input);
    require(again && written(*again) == written(*read), "not what it was read as", input);
}

} // namespace

void check(const QByteArray& input)
{
    checkStatement(QString::fromUtf8(input), input);
}

const std::vector<QByteArray>& pieces()
{
    static const std::vector<QByteArray> all =
        piecesOf("SELECT * FROM |DELETE * FROM | where | LIKE | ORDER BY | Desc| Asc|'|''|=|;|*|GameID|"
                 "PS3Games|%|_|%%|[|]|\n|a%_b|\xc3\x84|\xc3\xa4|\xf0\x9f\x8e\xae|\xff|\xe2\x84\xaa|--|/*",
                 {QByteArray(1, '\0')});
    return all;
}

} // namespace varnhold::test
