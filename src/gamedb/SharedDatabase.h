#pragma once

#include "platform/RunTimeError.h"
#include "platform/database/DatabaseCommand.h"
#include "platform/database/DatabaseConnection.h"
#include "platform/database/Recordset.h"
#include "state/ErrorReport.h"

#include <QByteArray>

#include <memory>

namespace varnhold {

class DatabaseWatch;
class MessageBoxes;
class Settings;

/// What all database routines share. A routine opens the connection, works and closes it again; after a
/// report it stays open, the next routine then fails at Open with 3705, and the report of that one closes it.
class SharedDatabase
{
public:
    /// `watch`, which may be null, watches over every connection.
    SharedDatabase(const Settings& settings, MessageBoxes& boxes, DatabaseWatch* watch = nullptr);

    QString DBConnFile;   ///< the tag of txt_IDList at the last connect
    QString DBConnString; ///< of the last connect
    DatabaseConnection DBConn;
    std::unique_ptr<Recordset> DBRecords; ///< replaced by a new object where a routine says so
    DatabaseCommand DBCommand;
    QString SQLText;     ///< the statement last built
    QString DBKey;       ///< GameID that the running command acts on
    QString loadedKey;   ///< GameID of the entry that the main window loaded last
    QByteArray PicBytes; ///< a picture file on its way into GameImage, with one zero byte behind it

    /// DBConnFile, DBConnString, then opens DBConn.
    void connect();
    /// Sets SQLText and opens DBRecords on it.
    void select(const QString& statement);
    /// Sets SQLText and runs it, a DELETE; the number of rows.
    int remove(const QString& statement);
    void close(); ///< DBRecords, then DBConn

    /// Runs a routine's body with the report on failure; true when it ran through.
    template <typename Body> bool reporting(Body&& body)
    {
        try {
            body();
            return true;
        } catch (const RunTimeError& error) {
            report(error);
            return false;
        }
    }
    void report(const RunTimeError& error);
    /// Closes what is open, without failing.
    void release();
    /// For who opens a connection of its own.
    [[nodiscard]] DatabaseWatch* watch() const { return m_watch; }

private:
    DatabaseWatch* m_watch;
    const Settings& m_settings;
    MessageBoxes& m_boxes;
};

/// The text that DBConn is opened with.
QString connectionString(const QString& path);

} // namespace varnhold
