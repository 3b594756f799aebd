#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <QFile>

#include <sqlite3.h>

#include <memory>
#include <utility>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

using Engine = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Prepared = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Engine open(const QString& path, int flags)
{
    sqlite3* engine = nullptr;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &engine, flags, nullptr);
    EXPECT_EQ(result, SQLITE_OK) << qPrintable(path);
    sqlite3_busy_timeout(engine, 2000);
    // Tests need no disk that has the bytes for sure.
    sqlite3_exec(engine, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
    return {engine, &sqlite3_close};
}

Prepared prepare(const Engine& engine, const QString& sql)
{
    const QByteArray text = sql.toUtf8();
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(engine.get(), text.constData(), static_cast<int>(text.size()), &statement,
                                 nullptr),
              SQLITE_OK)
        << sqlite3_errmsg(engine.get());
    return {statement, &sqlite3_finalize};
}

void run(const Engine& engine, const QString& sql)
{
    EXPECT_EQ(sqlite3_exec(engine.get(), sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(engine.get()) << ": " << qPrintable(sql);
}

void bindText(const Prepared& statement, int index, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    if (text.isNull())
        sqlite3_bind_null(statement.get(), index);
    else
        sqlite3_bind_text64(statement.get(), index, bytes.constData(),
                            static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
}

} // namespace

TestDatabase::TestDatabase(QString path) : m_path(std::move(path))
{
    EXPECT_FALSE(QFile::exists(m_path)) << qPrintable(m_path);
    const Engine engine = open(m_path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    for (const auto& table : {u"PS3Games"_s, u"PS3Personal"_s})
        run(engine, u"CREATE TABLE %1 (GameID TEXT COLLATE NOCASE UNIQUE, GameName TEXT, GameNotes TEXT, "
                    "GameImage BLOB)"_s.arg(table));
    run(engine, u"CREATE TABLE PS3Links (GameID TEXT, GameName TEXT, PKG TEXT, FW TEXT, SIZE TEXT, "
                "SHA1 TEXT, Link TEXT COLLATE NOCASE UNIQUE)"_s);
}

void TestDatabase::addGames(const QString& table, const QList<GameRow>& rows) const
{
    const Engine engine = open(m_path, SQLITE_OPEN_READWRITE);
    run(engine, u"BEGIN"_s);
    const Prepared insert = prepare(engine, u"INSERT INTO %1 VALUES (?1, ?2, ?3, ?4)"_s.arg(table));
    for (const GameRow& row : rows) {
        bindText(insert, 1, row.id);
        bindText(insert, 2, row.name);
        bindText(insert, 3, row.notes);
        if (row.image.isNull())
            sqlite3_bind_null(insert.get(), 4);
        else
            sqlite3_bind_blob64(insert.get(), 4, row.image.constData(),
                                static_cast<sqlite3_uint64>(row.image.size()), SQLITE_STATIC);
        EXPECT_EQ(sqlite3_step(insert.get()), SQLITE_DONE) << sqlite3_errmsg(engine.get());
        sqlite3_reset(insert.get());
    }
    run(engine, u"COMMIT"_s);
}

void TestDatabase::execute(const QString& sql) const
{
    run(open(m_path, SQLITE_OPEN_READWRITE), sql);
}

QStringList TestDatabase::column(const QString& sql) const
{
    const Engine engine = open(m_path, SQLITE_OPEN_READWRITE);
    const Prepared select = prepare(engine, sql);
    QStringList values;
    int result = SQLITE_OK;
    while ((result = sqlite3_step(select.get())) == SQLITE_ROW) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(select.get(), 0));
        values << (text ? QString::fromUtf8(text, sqlite3_column_bytes(select.get(), 0)) : QString());
    }
    EXPECT_EQ(result, SQLITE_DONE) << sqlite3_errmsg(engine.get());
    return values;
}

QByteArray TestDatabase::bytes(const QString& sql) const
{
    const Engine engine = open(m_path, SQLITE_OPEN_READWRITE);
    const Prepared select = prepare(engine, sql);
    EXPECT_EQ(sqlite3_step(select.get()), SQLITE_ROW) << qPrintable(sql);
    return {static_cast<const char*>(sqlite3_column_blob(select.get(), 0)),
            sqlite3_column_bytes(select.get(), 0)};
}

bool TestDatabase::isSound() const
{
    return column(u"PRAGMA integrity_check"_s) == QStringList{u"ok"_s};
}

} // namespace varnhold::test
