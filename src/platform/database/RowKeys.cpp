#include "platform/database/RowKeys.h"

#include "platform/RunTimeError.h"
#include "platform/database/EngineStatement.h"

#include <utility>

namespace varnhold {

void RowKeys::ValueDeleter::operator()(sqlite3_value* value) const
{
    sqlite3_value_free(value);
}

RowKeys::RowKeys(QByteArray rowId) : m_columns{rowId}, m_list(std::move(rowId)) {}

RowKeys::RowKeys(std::vector<QByteArray> keyColumns)
    : m_columns(std::move(keyColumns)), m_held(std::make_shared<Held>())
{
    for (const QByteArray& column : m_columns)
        m_list += (m_list.isEmpty() ? "" : ", ") + column;
}

QByteArray RowKeys::condition(int first) const
{
    QByteArray text;
    for (const QByteArray& column : m_columns)
        text += (text.isEmpty() ? "" : " AND ") + column + " = ?" + QByteArray::number(first++);
    return text;
}

std::string RowKeys::bytes(const EngineStatement& row) const
{
    std::string all;
    for (int column = 0; column < width(); ++column) {
        // The type first: 7, '7' and x'37' are three keys. The length keeps neighbours apart.
        const int type = sqlite3_value_type(row.value(column));
        const double real = sqlite3_value_double(row.value(column));
        QByteArrayView value(reinterpret_cast<const char*>(&real), sizeof real);
        if (type != SQLITE_FLOAT)
            value = type == SQLITE_BLOB ? row.binary(column) : row.text(column);
        all += static_cast<char>(type);
        all += std::to_string(value.size()) + ':';
        all.append(value.data(), static_cast<std::size_t>(value.size()));
    }
    return all;
}

RowKeys::Key RowKeys::key(const EngineStatement& row) const
{
    Key key;
    for (int column = 0; column < width(); ++column) {
        key.emplace_back(sqlite3_value_dup(row.value(column)));
        if (!key.back())
            throw RunTimeError(errors::outOfMemory);
    }
    return key;
}

qint64 RowKeys::number(const EngineStatement& row) const
{
    if (!m_held)
        return row.integer(0);
    std::string wanted = bytes(row);
    if (const auto found = m_held->numbers.find(wanted); found != m_held->numbers.end())
        return found->second;
    const auto fresh = static_cast<qint64>(m_held->keys.size());
    m_held->keys.push_back(key(row));
    m_held->numbers.emplace(std::move(wanted), fresh);
    return fresh;
}

void RowKeys::bind(EngineStatement& statement, int first, qint64 number) const
{
    if (!m_held) {
        statement.bindInteger(first, number);
        return;
    }
    for (const auto& value : m_held->keys.at(static_cast<std::size_t>(number)))
        statement.bindValue(first++, value.get());
}

void RowKeys::follow(const EngineStatement& row, qint64 number) const
{
    if (!m_held)
        return;
    std::erase_if(m_held->numbers, [&](const auto& entry) { return entry.second == number; });
    m_held->numbers[bytes(row)] = number;
    m_held->keys.at(static_cast<std::size_t>(number)) = key(row);
}

} // namespace varnhold
