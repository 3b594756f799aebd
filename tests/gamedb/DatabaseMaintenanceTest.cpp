#include "gamedb/DatabaseMaintenance.h"

#include "MaintenanceWorld.h"
#include "gamedb/DatabasePageView.h"
#include "support/FakePump.h"
#include "support/OtherProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

/// The page as plain values, with a journal.
class FakePage : public DatabasePageView
{
public:
    explicit FakePage(const Settings& settings) : m_settings(settings) {}

    void showBusy(bool) override {}
    void clearTables() override { tables.clear(); }
    void addTable(const QString& name) override { tables << name; }
    void refreshTables() override { steps << u"refresh"_s; }
    [[nodiscard]] QString newTableName() const override { return newName; }
    void clearNewTableName() override { newName.clear(); }
    void focusNewTableName() override { steps << u"focus"_s; }
    void showOutcome(Outcome outcome) override
    {
        steps << (outcome == Outcome::None ? u"rest"_s : outcome == Outcome::Good ? u"good"_s : u"bad"_s);
    }
    void refreshFileSize(bool highlighted) override
    {
        EXPECT_TRUE(highlighted);
        steps << m_settings.databaseSize();
    }
    void setStatus(const QString& text) override { steps << text; }

    QStringList taken() { return std::exchange(steps, {}); }

    QStringList tables;
    QString newName;
    QStringList steps;

private:
    const Settings& m_settings;
};

} // namespace

class DatabasePageTest : public MaintenanceWorld
{
protected:
    [[nodiscard]] QString backup() const { return root.path(u"Backup/GameDB.mdb"_s); }
    [[nodiscard]] QStringList taken(const QString& title)
    {
        QStringList texts;
        for (const QString& box : boxes.taken()) {
            EXPECT_TRUE(box.startsWith(title + u'|')) << qPrintable(box);
            texts << box.mid(title.size() + 1);
        }
        return texts;
    }
    /// Answers Yes; what box comes besides the question.
    QStringList backUp()
    {
        boxes.answers = {yes};
        maintenance.mnuDB_Backup_Click();
        QStringList shown = boxes.taken();
        EXPECT_EQ(shown.takeFirst(), u"Database Backup|Backup Database?"_s);
        return shown;
    }

    QStringList compact()
    {
        maintenance.cmd_Tables_Click(2);
        return boxes.taken();
    }

    FakePump pump;
    FakePage page{settings};
    DatabaseMaintenance maintenance{{shared, settings, file, root.paths(), boxes, pump, page}};
};

TEST_F(DatabasePageTest, ListsAndRenamesTables)
{
    maintenance.cmd_Tables_Click(0);
    EXPECT_EQ(page.tables, (QStringList{u"PS3Games"_s, u"PS3Personal"_s, u"PS3Links"_s}));
    maintenance.cmd_Tables_Click(1);
    EXPECT_EQ(taken(u"Error"_s), QStringList{u"Error: Please Select Table"_s});
    EXPECT_EQ(page.taken(), (QStringList{u"refresh"_s, u"bad"_s, u"rest"_s}));
    maintenance.lstTables_Click(u"PS3Links"_s);
    maintenance.cmd_Tables_Click(1);
    EXPECT_EQ(taken(u"Error"_s), QStringList{u"Error: Table name is Blank!"_s});
    EXPECT_EQ(page.taken(), (QStringList{u"focus"_s, u"refresh"_s, u"bad"_s, u"rest"_s}));

    page.newName = u"ps3games"_s;
    maintenance.cmd_Tables_Click(1);
    EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(errors::database::tableExists)});
    EXPECT_EQ(page.newName, u"ps3games"_s);
    page.newName = u"Saved"_s;
    pump.at(pump.count + 3,
            [&] { maintenance.cmd_Tables_Click(1); }); // pressed again while the outcome shows
    maintenance.cmd_Tables_Click(1);
    EXPECT_EQ(page.tables.last(), u"Saved"_s);
    EXPECT_EQ(page.newName, QString());
    EXPECT_EQ(page.taken(), (QStringList{u"good"_s, u"rest"_s}));
    page.newName = u"Again"_s;
    maintenance.cmd_Tables_Click(1);
    EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(errors::database::missingTable)})
        << "the selection is still the old name";
}

TEST_F(DatabasePageTest, CompactsAndTellsBothSizes)
{
    database.execute(u"INSERT INTO PS3Games (GameImage) VALUES (zeroblob(3000000)); DELETE FROM PS3Games"_s);
    EXPECT_EQ(compact(), QStringList());
    EXPECT_EQ(page.taken(), (QStringList{u"Before: 2.89 MB - Compacting/Repairing"_s,
                                         u"Before: 2.89 MB - After: 28.00 KB"_s}));
    const QString before = u"Before: 28.00 KB"_s;
    const QStringList failed{before + u" - Compacting/Repairing"_s, before};
    {
        const OtherProgram other(database.path(), "BEGIN IMMEDIATE");
        EXPECT_EQ(compact(), QStringList{AnsweringBoxes::report(errors::database::locked)});
        EXPECT_EQ(page.taken(), failed);
    }
    root.write(u"BackUp.mdb"_s, "another's");
    EXPECT_EQ(compact(), QStringList{AnsweringBoxes::report(errors::fileExists)});
    EXPECT_EQ(page.taken(), failed);
    EXPECT_EQ(root.read(u"BackUp.mdb"_s), "another's");
    EXPECT_TRUE(database.isSound());
}

TEST_F(DatabasePageTest, BacksUpWhatTheKeyNames)
{
    EXPECT_EQ(backUp(), QStringList());
    EXPECT_EQ(page.taken().size(), 1);
    EXPECT_TRUE(root.read(u"Backup/GameDB.mdb"_s) == root.read(u"Own.mdb"_s));
    // Another choice that was not stored changes nothing; a second backup takes the place of the first.
    settings.unwrittenValues().idList.tag = root.path(u"other.mdb"_s);
    database.execute(u"INSERT INTO PS3Links (Link) VALUES ('x')"_s);
    EXPECT_EQ(backUp(), QStringList());
    EXPECT_EQ(TestDatabase::opened(backup()).column(u"SELECT Link FROM PS3Links"_s), QStringList{u"x"_s});
    const OtherProgram other(database.path(), "BEGIN EXCLUSIVE");
    const QStringList failed = backUp();
    ASSERT_EQ(failed.size(), 1);
    EXPECT_TRUE(failed[0].startsWith(QCoreApplication::applicationName() + u'|' +
                                     QString::number(errors::database::locked) + u' '))
        << qPrintable(failed[0]);
    EXPECT_EQ(TestDatabase::opened(backup()).column(u"SELECT Link FROM PS3Links"_s), QStringList{u"x"_s});
    EXPECT_EQ(QDir(root.path(u"Backup"_s)).entryList(QDir::Files | QDir::Hidden),
              QStringList{u"GameDB.mdb"_s});
}

TEST_F(DatabasePageTest, BacksUpTheUsualFileOnlyWhereAComparisonIsAFile)
{
    settings.setIdList({u"gone.mdb"_s, root.path(u"gone.mdb"_s)});
    root.write(u"GameDB.mdb"_s, "usual");
    EXPECT_EQ(backUp(), QStringList());
    EXPECT_FALSE(QFileInfo::exists(backup()));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(root.paths().root));
    root.write(u"False"_s, "");
    EXPECT_EQ(backUp(), QStringList());
    EXPECT_EQ(root.read(u"Backup/GameDB.mdb"_s), "usual");
    QDir::setCurrent(before);
    QDir(root.path(u"Backup"_s)).removeRecursively();
    root.write(u"Backup"_s, "a file");
    settings.setIdList({u"Own.mdb"_s, database.path()});
    EXPECT_EQ(backUp().size(), 1);
}

} // namespace varnhold::test
