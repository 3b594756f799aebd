#include "platform/database/DatabaseStatement.h"

#include "platform/RunTimeError.h"
#include "platform/database/DatabaseErrors.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

struct Token
{
    enum class Kind { Word, Value, Sign, End };
    Kind kind = Kind::End;
    QStringView text; ///< of a value: what stands between the apostrophes
};

class Reader
{
public:
    explicit Reader(QStringView text) : m_rest(text) { advance(); }

    bool take(Token::Kind kind, QStringView text)
    {
        if (m_token.kind != kind || m_token.text.compare(text, Qt::CaseInsensitive) != 0)
            return false;
        advance();
        return true;
    }
    bool takeWord(QStringView word) { return take(Token::Kind::Word, word); }
    bool takeSign(QStringView sign) { return take(Token::Kind::Sign, sign); }

    QString expect(Token::Kind kind)
    {
        require(m_token.kind == kind);
        const QString text = m_token.text.toString();
        advance();
        return text;
    }

    static void require(bool condition)
    {
        if (!condition)
            throw databaseError(errors::database::badSyntax);
    }

private:
    static bool isWordCharacter(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

    void advance()
    {
        m_rest = m_rest.trimmed();
        if (m_rest.isEmpty()) {
            m_token = {};
            return;
        }
        qsizetype length = 0;
        if (m_rest.front() == u'\'') {
            length = m_rest.indexOf(u'\'', 1);
            require(length > 0);
            m_token = {Token::Kind::Value, m_rest.mid(1, length - 1)};
            ++length;
        } else {
            while (length < m_rest.size() && isWordCharacter(m_rest[length]))
                ++length;
            const auto kind = length > 0 ? Token::Kind::Word : Token::Kind::Sign;
            length = qMax<qsizetype>(length, 1);
            m_token = {kind, m_rest.first(length)};
        }
        m_rest = m_rest.mid(length);
    }

    QStringView m_rest;
    Token m_token;
};

DatabaseStatement::Condition readCondition(Reader& reader, bool likeAllowed)
{
    DatabaseStatement::Condition condition;
    condition.column = reader.expect(Token::Kind::Word);
    if (likeAllowed && reader.takeWord(u"LIKE"))
        condition.comparison = DatabaseStatement::Comparison::Like;
    else
        Reader::require(reader.takeSign(u"="));
    condition.value = reader.expect(Token::Kind::Value);
    return condition;
}

DatabaseStatement::Order readOrder(Reader& reader)
{
    DatabaseStatement::Order order;
    order.column = reader.expect(Token::Kind::Word);
    order.descending = reader.takeWord(u"Desc");
    if (!order.descending)
        reader.takeWord(u"Asc");
    return order;
}

} // namespace

DatabaseStatement readStatement(QStringView text)
{
    Reader reader(text);
    DatabaseStatement statement;
    if (reader.takeWord(u"DELETE"))
        statement.kind = DatabaseStatement::Kind::Delete;
    else
        Reader::require(reader.takeWord(u"SELECT"));
    Reader::require(reader.takeSign(u"*") && reader.takeWord(u"FROM"));
    statement.table = reader.expect(Token::Kind::Word);
    if (reader.takeWord(u"WHERE"))
        statement.condition = readCondition(reader, statement.kind == DatabaseStatement::Kind::Select);
    if (statement.kind == DatabaseStatement::Kind::Delete)
        Reader::require(statement.condition.has_value()); // no statement empties a table
    else if (reader.takeWord(u"ORDER")) {
        Reader::require(reader.takeWord(u"BY"));
        statement.order = readOrder(reader);
    }
    reader.takeSign(u";");
    reader.expect(Token::Kind::End);
    return statement;
}

} // namespace varnhold
