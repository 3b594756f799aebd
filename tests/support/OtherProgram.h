#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QString>

#include <sqlite3.h>

namespace varnhold::test {

/// Another program's hold on a database file while it lives.
class OtherProgram
{
public:
    OtherProgram(const QString& path, const char* sql)
    {
        EXPECT_EQ(sqlite3_open(QFile::encodeName(path).constData(), &m_engine), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(m_engine, sql, nullptr, nullptr, nullptr), SQLITE_OK);
    }
    ~OtherProgram() { sqlite3_close(m_engine); }
    [[nodiscard]] sqlite3* engine() const { return m_engine; }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

private:
    sqlite3* m_engine = nullptr;
};

} // namespace varnhold::test
