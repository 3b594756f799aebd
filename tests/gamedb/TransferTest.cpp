#include "gamedb/Transfer.h"

#include "MaintenanceWorld.h"
#include "gamedb/LinkDelete.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

class TransferTest : public MaintenanceWorld
{
protected:
    TransferTest()
    {
        settings.setOrder(Order::DBTable, 1);
        database.addGames(u"PS3Games"_s,
                          {{u"BLUS30443"_s, u"Ashgrove"_s, u"{\\rtf1 n}"_s, QByteArray("p\0c", 3)},
                           {u"NPEB00001"_s, u""_s}});
    }
    ~TransferTest() override { EXPECT_FALSE(shared.DBConn.isOpen()); }

    [[nodiscard]] QStringList personal(const QString& table = u"PS3Personal"_s) const
    {
        return database.column(
            u"SELECT GameID || '|' || coalesce(GameName, '-') || '|' || coalesce(GameNotes, '-') "
            "|| '|' || hex(GameImage) FROM "_s +
            table);
    }

    int reloads = 0;
    Transfer transfer{{shared, settings, boxes, [](bool) {}, [this] { ++reloads; }}};
};

TEST_F(TransferTest, CopiesAnEntryWithAllThatItHas)
{
    boxes.answers = {no, yes, yes};
    transfer.mnuCopyTo(u"BLUS30443"_s, 2);
    EXPECT_EQ(boxes.taken(), QStringList{u"Transferring Entry|Transfer Info to Personal DB?//BLUS30443"_s});
    EXPECT_EQ(personal(), QStringList());
    transfer.mnuCopyTo(u"blus30443"_s, 2);
    EXPECT_EQ(
        boxes.taken().last(),
        u"Transfer Complete|Personal Database has been updated.//GameID: BLUS30443/GameName: Ashgrove/"_s);
    transfer.mnuCopyTo(u"NPEB00001"_s, 2);
    EXPECT_EQ(boxes.taken().size(), 2);
    EXPECT_EQ(personal(), (QStringList{u"BLUS30443|Ashgrove|{\\rtf1 n}|700063"_s, u"NPEB00001|-|-|"_s}));

    boxes.answers = {yes, yes};
    database.execute(u"DELETE FROM PS3Personal"_s);
    transfer.mnuCpy(u"BLUS30443"_s, u"Row"_s, 1, u"PS3Links"_s);
    EXPECT_EQ(
        boxes.taken(),
        (QStringList{u"Transferring Entry|Transfer Info to Personal DB?//BLUS30443-[Row]"_s,
                     u"Transfer Complete|Personal Database has been updated.//GameID: BLUS30443/GameName: "
                     "Ashgrove/Would you like to reload Personal Database?"_s}));
    EXPECT_EQ(reloads, 1);
}

TEST_F(TransferTest, DoesNothingForThePersonalTableAndEmptyLists)
{
    transfer.mnuCpy(u"BLUS30443"_s, u"n"_s, 1, u"PS3Personal"_s);
    transfer.mnuCpy(u""_s, u""_s, 0, u"PS3Games"_s);
    transfer.mnuCopyTo(u""_s, 0);
    settings.setOrder(Order::DBTable, 2);
    transfer.mnuCopyTo(u"BLUS30443"_s, 2);
    EXPECT_EQ(personal(), QStringList());
}

TEST_F(TransferTest, AsksBeforeItUpdatesWhatIsThereAndCanOnlyDoSoUnderTheOldName)
{
    database.addGames(u"PS3Personal"_s, {{u"blus30443"_s, u"mine"_s}});
    boxes.answers = {yes, no};
    transfer.mnuCpy(u"BLUS30443"_s, u"Row"_s, 1, u"PS3Games"_s);
    EXPECT_EQ(boxes.taken().last(), u"Updating Entry|Entry already exist! Update Entry?//BLUS30443 - Row"_s);
    boxes.answers = {yes, yes};
    transfer.mnuCopyTo(u"BLUS30443"_s, 2);
    EXPECT_EQ(boxes.taken().last(), AnsweringBoxes::report(errors::database::missingTable));
    EXPECT_EQ(personal(), QStringList{u"blus30443|mine|-|"_s});

    database.execute(u"CREATE TABLE Personal AS SELECT * FROM PS3Personal"_s);
    boxes.answers = {yes, yes};
    transfer.mnuCopyTo(u"BLUS30443"_s, 2);
    EXPECT_TRUE(boxes.taken().last().startsWith(u"Transfer Updated|Personal Database has been updated."_s));
    EXPECT_EQ(personal(u"Personal"_s), QStringList{u"BLUS30443|Ashgrove|{\\rtf1 n}|700063"_s});
}

TEST_F(TransferTest, WritesNothingForAnEntryThatIsNotThere)
{
    boxes.answers = {yes, yes, yes, yes};
    transfer.mnuCopyTo(u"BCES00000"_s, 2);
    EXPECT_EQ(boxes.taken().last(), AnsweringBoxes::report(errors::database::noCurrentRecord));
    // The report left the connection open, which costs the next one.
    transfer.mnuCopyTo(u"BLUS30443"_s, 2);
    EXPECT_EQ(boxes.taken().last(), AnsweringBoxes::report(errors::database::objectOpen));
    transfer.mnuCopyTo(u"O'Neil"_s, 2);
    EXPECT_EQ(boxes.taken().last(), AnsweringBoxes::report(errors::database::badSyntax));
    EXPECT_EQ(personal(), QStringList());
    shared.release();
    transfer.mnuCopyTo(u"NPEB00001"_s, 2);
    EXPECT_EQ(boxes.taken().size(), 2);
}

TEST_F(TransferTest, DeletesALinkAndItsRow)
{
    database.execute(
        u"INSERT INTO PS3Links (GameID, Link) VALUES ('A', 'http://h/a'), ('B', 'http://h/b')"_s);
    int removed = 0;
    const auto remove = [&](const QString& address) {
        mnuLinkDel({u"A"_s, u"Name"_s, address}, shared, boxes, [&] { ++removed; });
    };
    boxes.answers = {no, yes, yes};
    remove(u"http://h/a"_s);
    EXPECT_EQ(boxes.taken(),
              QStringList{u"Delete Record|This will permanently delete the selected row//"
                          "GameID:\tA/Name:\tName/Link:\thttp://h/a//Do you want to proceed?"_s});
    remove(u"http://h/a"_s);
    EXPECT_EQ(
        boxes.taken().last(),
        u"Record Deleted!|Command completed successfully!//GameID:\tA/Name:\tName/Link:\thttp://h/a/"_s);
    remove(u"http://h/'b"_s);
    EXPECT_EQ(boxes.taken().last(), AnsweringBoxes::report(errors::database::badSyntax));
    EXPECT_EQ(removed, 1);
    EXPECT_EQ(database.column(u"SELECT GameID FROM PS3Links"_s), QStringList{u"B"_s});
}

} // namespace varnhold::test
