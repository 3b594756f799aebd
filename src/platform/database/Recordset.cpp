#include "platform/database/Recordset.h"

#include "platform/database/DatabaseConnection.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/DatabaseStatement.h"
#include "platform/database/RowSnapshot.h"
#include "platform/database/RowWriter.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace varnhold {

namespace db = errors::database;

class Recordset::State
{
public:
    State(std::shared_ptr<DatabaseFile> file, DatabaseStatement statement)
        : m_file(std::move(file)),
          m_statement(std::move(statement)),
          m_table(m_file->table(m_statement.table)),
          m_writer(*m_file, m_table)
    {
        if (m_statement.condition)
            (void)m_table->column(m_statement.condition->column);
        if (m_statement.order)
            (void)m_table->column(m_statement.order->column);
    }

    [[nodiscard]] bool isOpen() const { return m_file->isOpen(); }

    [[nodiscard]] std::size_t count() { return rows().count() + m_added.size(); }
    [[nodiscard]] bool atEnd() { return !m_adding && position() >= count(); }

    std::size_t position()
    {
        // The record added last is the current one until the next move; where that is needs no look until
        // now.
        if (m_onAdded)
            return count() - 1;
        return m_position;
    }

    void moveNext()
    {
        storePending();
        if (atEnd())
            throw databaseError(db::noCurrentRecord);
        m_position = position() + 1;
        m_onAdded = false;
        m_chunk = {};
    }

    QString value(const QString& name)
    {
        const int column = m_table->column(name);
        if (const PendingValue* set = pending(column))
            return set->bytes.isEmpty() ? QString::fromLatin1("") : QString::fromUtf8(set->bytes);
        if (m_adding)
            return {};
        requireCurrent();
        if (!m_onAdded && m_position < rows().count())
            return rows().text(m_position, column);
        std::optional<QString> text = lookUpText(*m_file, *m_table, currentRow(), column);
        if (!text)
            throw databaseError(db::noCurrentRecord);
        return *std::move(text);
    }

    qint64 actualSize(const QString& name)
    {
        const int column = m_table->column(name);
        if (const PendingValue* set = pending(column))
            return set->bytes.size();
        if (m_adding)
            return 0;
        requireCurrent();
        return m_file->valueSize(*m_table, column, currentRow());
    }

    QByteArray getChunk(const QString& name, qint64 length)
    {
        const int column = m_table->column(name);
        if (m_adding || pending(column))
            throw databaseError(db::notAllowed);
        requireCurrent();
        if (m_chunk.column != column)
            m_chunk = {column, 0};
        QByteArray bytes = m_file->readValue(*m_table, column, currentRow(), m_chunk.offset, length);
        m_chunk.offset += bytes.size();
        return bytes;
    }

    void addNew()
    {
        storePending();
        m_adding = true;
        m_chunk = {};
    }

    PendingValue& pendingFor(const QString& name, bool& fresh)
    {
        const int column = m_table->column(name);
        if (!m_adding)
            requireCurrent();
        PendingValue* const set = pending(column);
        fresh = set == nullptr;
        return set ? *set : m_pending.emplace_back(PendingValue{column, false, {}});
    }

    void update()
    {
        if (m_adding) {
            m_added.push_back(m_writer.insert(m_pending));
            m_onAdded = true;
        } else {
            requireCurrent();
            if (m_pending.empty())
                return;
            m_writer.update(currentRow(), m_pending);
            for (const PendingValue& value : m_pending) {
                if (!m_onAdded && m_rows && m_position < m_rows->count())
                    m_rows->forget(m_position, value.column);
            }
        }
        m_adding = false;
        m_pending.clear();
        m_chunk = {};
    }

private:
    struct Chunk
    {
        int column = -1;
        qint64 offset = 0;
    };

    RowSnapshot& rows()
    {
        if (!m_rows) {
            // Rows of our own stand behind the others, also when the table is read after they were stored.
            std::vector<qint64> own = m_added;
            std::sort(own.begin(), own.end());
            m_rows.emplace(*m_file, m_table, m_statement, own);
        }
        return *m_rows;
    }

    void storePending()
    {
        if (m_adding || !m_pending.empty())
            update();
    }

    void requireCurrent()
    {
        if (!m_onAdded && m_position >= count())
            throw databaseError(db::noCurrentRecord);
    }

    qint64 currentRow()
    {
        if (m_onAdded)
            return m_added.back();
        const std::size_t read = rows().count();
        return m_position < read ? rows().number(m_position) : m_added[m_position - read];
    }

    PendingValue* pending(int column)
    {
        const auto found = std::find_if(m_pending.begin(), m_pending.end(),
                                        [&](const PendingValue& value) { return value.column == column; });
        return found == m_pending.end() ? nullptr : &*found;
    }

    std::shared_ptr<DatabaseFile> m_file;
    DatabaseStatement m_statement;
    std::shared_ptr<const TableSchema> m_table;
    RowWriter m_writer;
    std::optional<RowSnapshot> m_rows; ///< made when something is first asked of it
    std::vector<qint64> m_added;       ///< row ids of the records stored through this recordset
    std::size_t m_position = 0;
    bool m_onAdded = false;
    bool m_adding = false;
    std::vector<PendingValue> m_pending;
    Chunk m_chunk;
};

Recordset::Recordset() = default;
Recordset::~Recordset() = default;

void Recordset::Open(const QString& statement, const DatabaseConnection& connection)
{
    if (isOpen())
        throw databaseError(db::objectOpen);
    m_state.reset();
    (void)connection.file();
    Open(readStatement(statement), connection);
}

void Recordset::Open(const DatabaseStatement& statement, const DatabaseConnection& connection)
{
    if (isOpen())
        throw databaseError(db::objectOpen);
    m_state.reset();
    const std::shared_ptr<DatabaseFile>& file = connection.file();
    if (statement.kind != DatabaseStatement::Kind::Select)
        throw databaseError(db::badSyntax);
    m_state = std::make_unique<State>(file, statement);
}

void Recordset::Close()
{
    (void)state();
    m_state.reset();
}

bool Recordset::isOpen() const
{
    return m_state && m_state->isOpen();
}

Recordset::State& Recordset::state() const
{
    if (!isOpen())
        throw databaseError(db::objectClosed);
    return *m_state;
}

int Recordset::RecordCount() const
{
    return static_cast<int>(std::min<std::size_t>(state().count(), std::numeric_limits<int>::max()));
}

bool Recordset::atEnd() const
{
    return state().atEnd();
}

int Recordset::AbsolutePosition() const
{
    if (state().atEnd())
        throw databaseError(db::noCurrentRecord);
    return static_cast<int>(std::min<std::size_t>(state().position() + 1, std::numeric_limits<int>::max()));
}

void Recordset::MoveNext()
{
    state().moveNext();
}

QString Recordset::value(const QString& column) const
{
    return state().value(column);
}

qint64 Recordset::ActualSize(const QString& column) const
{
    return state().actualSize(column);
}

QByteArray Recordset::GetChunk(const QString& column, qint64 length)
{
    return state().getChunk(column, length);
}

void Recordset::AddNew()
{
    state().addNew();
}

void Recordset::setValue(const QString& column, const QString& value)
{
    bool fresh = false;
    PendingValue& pending = state().pendingFor(column, fresh);
    pending.binary = false;
    pending.bytes = value.toUtf8();
}

void Recordset::AppendChunk(const QString& column, const QByteArray& bytes)
{
    bool fresh = false;
    PendingValue& pending = state().pendingFor(column, fresh);
    if (fresh || !pending.binary)
        pending.bytes = bytes;
    else
        pending.bytes += bytes;
    pending.binary = true;
}

void Recordset::Update()
{
    state().update();
}

void Recordset::UpdateBatch()
{
    (void)state();
}

} // namespace varnhold
