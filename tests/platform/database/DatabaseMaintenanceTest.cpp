// Compaction and copy, both of which put one whole file in the place of another.

#include "DatabaseFixture.h"

#include "platform/database/DatabaseCompaction.h"
#include "platform/database/DatabaseCopy.h"
#include "support/OtherProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace varnhold::test {

using namespace Qt::StringLiterals;

class DatabaseMaintenanceTest : public DatabaseTest
{
protected:
    DatabaseMaintenanceTest()
    {
        file.execute(
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
            "INSERT INTO PS3Games SELECT 'ID' || i, 'Title ' || i, hex(zeroblob(500)), zeroblob(3000) "
            "FROM n; DELETE FROM PS3Games WHERE rowid % 3 = 0"_s);
    }

    static void expectAllRows(const TestDatabase& database)
    {
        EXPECT_TRUE(database.isSound());
        EXPECT_EQ(database.column(u"SELECT count(*) || ' ' || sum(substr(GameID, 3)) || ' ' || "
                                  "sum(length(GameNotes) + length(GameImage)) FROM PS3Games"_s),
                  QStringList{u"2000 3000000 8000000"_s});
    }
    [[nodiscard]] QString name() const { return QFileInfo(file.path()).fileName(); }
    [[nodiscard]] QStringList files() const
    {
        return QFileInfo(file.path()).dir().entryList(QDir::Files | QDir::Hidden);
    }

    QString target = root.path(u"Backup.mdb"_s);
};

TEST_F(DatabaseMaintenanceTest, CompactsInPlaceAndKeepsWhatTheOwnerChose)
{
    const QString link = root.path(u"link.mdb"_s);
    ASSERT_TRUE(QFile::link(file.path(), link));
    ASSERT_EQ(chmod(QFile::encodeName(file.path()).constData(), 0640), 0);
    const qint64 before = QFileInfo(file.path()).size();
    for (const QString& mode : {u"delete"_s, u"wal"_s}) {
        file.execute(u"PRAGMA user_version = 7; PRAGMA journal_mode = "_s + mode);
        compactDatabaseFile(link);
        EXPECT_LT(QFileInfo(file.path()).size(), before * 3 / 4);
        EXPECT_TRUE(QFileInfo(link).isSymLink());
        EXPECT_EQ(files().size(), 2) << qPrintable(files().join(u' '));
        struct stat status = {};
        stat(QFile::encodeName(file.path()).constData(), &status);
        EXPECT_EQ(status.st_mode & 0777, 0640U);
        expectAllRows(file);
        EXPECT_EQ(stored(u"PRAGMA journal_mode"_s), QStringList{mode});
        EXPECT_EQ(stored(u"PRAGMA user_version"_s), QStringList{u"7"_s});
    }
}

TEST_F(DatabaseMaintenanceTest, KeepsOthersFromWritingToTheOldFile)
{
    const OtherProgram other(file.path(), "SELECT count(*) FROM PS3Games");
    compactDatabaseFile(file.path());
    EXPECT_NE(sqlite3_exec(other.engine(), "INSERT INTO PS3Games (GameID) VALUES ('lost')", nullptr, nullptr,
                           nullptr),
              SQLITE_OK);
    expectAllRows(file);
}

TEST_F(DatabaseMaintenanceTest, CopiesOneConsistentState)
{
    copyDatabaseFile(file.path(), target);
    EXPECT_TRUE(root.read(u"Backup.mdb"_s) == root.read(name()));
    // What waits in a log is in the copy, which is one file; a second copy takes the place of the first.
    const OtherProgram writer(file.path(), "PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0; "
                                           "INSERT INTO PS3Personal (GameID) VALUES ('logged'); BEGIN; "
                                           "INSERT INTO PS3Personal (GameID) VALUES ('not yet')");
    for (const auto& count : {u"1"_s, u"2"_s}) {
        copyDatabaseFile(file.path(), target);
        const TestDatabase copy = TestDatabase::opened(target);
        EXPECT_EQ(copy.column(u"SELECT count(*) FROM PS3Personal"_s), QStringList{count});
        EXPECT_FALSE(QFile::exists(target + u"-wal"_s));
        expectAllRows(copy);
        sqlite3_exec(writer.engine(), "COMMIT", nullptr, nullptr, nullptr);
    }
}

TEST_F(DatabaseMaintenanceTest, CopiesWhateverIsThereAndNothingThatChanges)
{
    for (const QByteArray& bytes :
         {QByteArray("no database"), QByteArray(""), QByteArray("SQLite format 3\0cut", 19)}) {
        QFile::remove(root.path(u"any"_s));
        copyDatabaseFile(root.write(u"any"_s, bytes), target);
        EXPECT_EQ(root.read(u"Backup.mdb"_s), bytes);
    }
    EXPECT_EQ(errorNumberOf([&] { copyDatabaseFile(root.path(u"none"_s), target); }), errors::fileNotFound);
    EXPECT_NE(errorNumberOf([&] { copyDatabaseFile(file.path(), root.path(u"no/folder"_s)); }), 0);
    const OtherProgram writer(file.path(), "BEGIN EXCLUSIVE");
    const QByteArray before = root.read(u"Backup.mdb"_s);
    EXPECT_EQ(errorNumberOf([&] { copyDatabaseFile(file.path(), target); }), db::locked);
    EXPECT_EQ(root.read(u"Backup.mdb"_s), before);
}

TEST_F(DatabaseMaintenanceTest, AKillAtAnyMomentLosesNoRow)
{
    for (int i = 0; i < 24; ++i) {
        file.execute(i % 4 < 2 ? u"PRAGMA journal_mode = WAL"_s : u"PRAGMA journal_mode = DELETE"_s);
        const pid_t child = fork();
        if (child == 0) {
            for (;;) {
                if (i % 2 == 0)
                    compactDatabaseFile(file.path());
                else
                    copyDatabaseFile(file.path(), target);
            }
        }
        usleep(static_cast<useconds_t>(2'000 + i * 3'571));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        expectAllRows(file);
        if (QFile::exists(target))
            expectAllRows(TestDatabase::opened(target));
    }
    compactDatabaseFile(file.path());
    QStringList left = files();
    left.removeOne(u"Backup.mdb"_s);
    EXPECT_EQ(left, QStringList{name()});
    expectAllRows(file);
}

} // namespace varnhold::test
