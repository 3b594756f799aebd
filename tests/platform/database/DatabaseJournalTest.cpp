#include "DatabaseFixture.h"

#include <QDir>
#include <QFileInfo>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace varnhold::test {

using namespace Qt::StringLiterals;

class DatabaseJournalTest : public DatabaseTest
{
protected:
    [[nodiscard]] QStringList filesBeside() const
    {
        return QFileInfo(file.path()).dir().entryList(QDir::Files | QDir::Hidden);
    }
    [[nodiscard]] QString journalMode() const { return stored(u"PRAGMA journal_mode"_s).first(); }
};

TEST_F(DatabaseJournalTest, WritesAheadAndLeavesOneFile)
{
    open(u"SELECT * FROM PS3Games"_s);
    for (int i = 0; i < 10; ++i) {
        records.AddNew();
        records.setValue(u"GameID"_s, QString::number(i));
        records.Update();
    }
    EXPECT_EQ(journalMode(), u"wal"_s);
    EXPECT_EQ(stored(u"SELECT count(*) FROM PS3Games"_s), QStringList{u"10"_s});
    connection.Close();
    EXPECT_EQ(filesBeside(), QStringList{QFileInfo(file.path()).fileName()});
    EXPECT_EQ(journalMode(), u"delete"_s);
    EXPECT_TRUE(file.isSound());
}

TEST_F(DatabaseJournalTest, LeavesTheLogToAnOwnerWhoWantsOne)
{
    file.execute(u"PRAGMA journal_mode = WAL"_s);
    open(u"SELECT * FROM PS3Games"_s);
    for (int i = 0; i < 10; ++i) {
        records.AddNew();
        records.Update();
    }
    connection.Close();
    EXPECT_EQ(filesBeside(), QStringList{QFileInfo(file.path()).fileName()});
    EXPECT_EQ(journalMode(), u"wal"_s);
}

TEST_F(DatabaseJournalTest, ReadingLeavesTheBytesAlone)
{
    file.addGames(u"PS3Games"_s, {{u"A"_s, u"x"_s}});
    const QByteArray before = root.read(QFileInfo(file.path()).fileName());
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games ORDER BY GameName Asc"_s), QStringList{u"A"_s});
    connection.Close();
    EXPECT_EQ(root.read(QFileInfo(file.path()).fileName()), before);
}

/// A child that stores records, one Update each, and says so of each; it closes and opens anew all the time,
/// so that a kill also meets the change of the journal and the last moments of a close.
class KillTest : public DatabaseJournalTest
{
protected:
    struct Child
    {
        pid_t pid = 0;
        int acknowledged = -1; ///< a pipe's end
    };

    Child startChild(int recordsEach) const
    {
        int ends[2] = {};
        EXPECT_EQ(pipe(ends), 0);
        const pid_t pid = fork();
        if (pid == 0) {
            close(ends[0]);
            for (int next = 0;;)
                next = storeSome(next, recordsEach, ends[1]);
        }
        close(ends[1]);
        return {pid, ends[0]};
    }

    [[nodiscard]] int storeSome(int next, int count, int acknowledge) const
    {
        DatabaseConnection own;
        own.Open(connectionTo(file.path()));
        Recordset rows;
        rows.Open(u"SELECT * FROM PS3Games"_s, own);
        for (const int end = next + count; next < end; ++next) {
            rows.AddNew();
            rows.setValue(u"GameID"_s, QString::number(next));
            rows.AppendChunk(u"GameImage"_s, QByteArray(next % 7 * 1'000, 'i'));
            rows.Update();
            if (write(acknowledge, "x", 1) != 1)
                _exit(1);
        }
        rows.Close();
        own.Close();
        return next;
    }

    /// Kills the child once it has acknowledged so many records; how many they were in the end.
    static int killAfter(const Child& child, int wanted, int microseconds)
    {
        int count = 0;
        char byte = 0;
        while (count < wanted && read(child.acknowledged, &byte, 1) == 1)
            ++count;
        EXPECT_EQ(count, wanted);
        usleep(static_cast<useconds_t>(microseconds));
        kill(child.pid, SIGKILL);
        while (read(child.acknowledged, &byte, 1) == 1)
            ++count;
        close(child.acknowledged);
        int status = 0;
        waitpid(child.pid, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status));
        return count;
    }
};

TEST_F(KillTest, LosesNoAcknowledgedRecord)
{
    for (const int recordsEach : {3, 1'000'000}) {
        for (const int wanted : {0, 1, 2, 3, 17, 300, 1'500}) {
            if (recordsEach == 3 && wanted > 20)
                continue;
            const int acknowledged = killAfter(startChild(recordsEach), wanted, wanted * 37 % 1'000);
            SCOPED_TRACE(acknowledged);
            open(u"SELECT * FROM PS3Games"_s);
            // One more may have been stored and not yet acknowledged.
            EXPECT_GE(records.RecordCount(), acknowledged);
            EXPECT_LE(records.RecordCount(), acknowledged + 1);
            for (int i = 0; !records.atEnd(); records.MoveNext(), ++i) {
                ASSERT_EQ(records.value(u"GameID"_s), QString::number(i));
                ASSERT_EQ(records.ActualSize(u"GameImage"_s), i % 7 * 1'000);
            }
            connection.Close();
            EXPECT_FALSE(QFile::exists(file.path() + u"-wal"_s));
            EXPECT_TRUE(file.isSound());
            file.execute(u"DELETE FROM PS3Games"_s);
        }
    }
}

} // namespace varnhold::test
