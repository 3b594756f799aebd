#pragma once

#include <QString>

#include <memory>

namespace varnhold {

class DatabaseFile;
class DatabaseWatch;

/// One open database file. Never made by this program: a file that is absent, empty or no database is
/// refused, and left as it is. Every write is on its own and outlives a kill of the process; while files are
/// open a write-ahead log may stand beside them, and closing leaves a single file that can be copied; a file
/// whose owner keeps it with such a log stays so. A statement that works for seconds without a row fails.
class DatabaseConnection
{
public:
    /// `watch`, which may be null, is there as long as the connection.
    explicit DatabaseConnection(DatabaseWatch* watch = nullptr);
    ~DatabaseConnection();
    DatabaseConnection(const DatabaseConnection&) = delete;
    DatabaseConnection& operator=(const DatabaseConnection&) = delete;

    /// Parts "name=value" separated by ";", of which "Data Source" (in any case) is the file's path and the
    /// others have no meaning here. RunTimeError 3705 when open already, 0x80040E4D when the file cannot be
    /// opened, is no database or is damaged, 0x80004005 when another program holds it locked.
    void Open(const QString& connectionString);
    /// RunTimeError 3704 when not open. Recordsets on it are closed with it.
    void Close();
    [[nodiscard]] bool isOpen() const;

    /// The opened file, for the layer's own classes; RunTimeError 3704 when not open.
    [[nodiscard]] const std::shared_ptr<DatabaseFile>& file() const;

private:
    DatabaseWatch* m_watch;
    std::shared_ptr<DatabaseFile> m_file;
};

} // namespace varnhold
