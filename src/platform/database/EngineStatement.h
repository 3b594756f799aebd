#pragma once

#include "platform/database/EnginePatience.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>

#include <sqlite3.h>

namespace varnhold {

using PreparedStatement = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;

/// One run of a prepared statement. Its end resets the statement, so that no run stays open behind an
/// exception and no lock outlives it.
class EngineStatement
{
public:
    /// `isUtf8`: the file holds its texts so.
    EngineStatement(sqlite3_stmt* statement, EnginePatience& patience, bool isUtf8)
        : m_statement(statement), m_patience(patience), m_isUtf8(isUtf8)
    {
        patience.progressed();
    }
    ~EngineStatement();
    EngineStatement(const EngineStatement&) = delete;
    EngineStatement& operator=(const EngineStatement&) = delete;

    /// Parameters and columns count as the engine does: from 1, from 0. Bytes are not copied and must outlive
    /// the run.
    void bindInteger(int index, qint64 value);
    void bindText(int index, QByteArrayView utf8);
    void bindBinary(int index, QByteArrayView bytes);
    void bindValue(int index, const sqlite3_value* value); ///< copied, of whatever type

    /// True with a row, false when done. RunTimeError by the engine's result.
    bool step();

    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] qint64 integer(int column) const;
    /// Valid until the next step.
    [[nodiscard]] QByteArrayView text(int column) const;
    [[nodiscard]] QByteArrayView binary(int column) const;
    [[nodiscard]] sqlite3_value* value(int column) const;

private:
    void require(int result) const;

    sqlite3_stmt* m_statement;
    EnginePatience& m_patience;
    bool m_isUtf8;
};

/// A failure of the engine as the layer's error. `result` is the extended code.
[[noreturn]] void throwEngineError(int result, const char* message);

} // namespace varnhold
