#include "gamedb/UpdateLinks.h"
#include "GameWorld.h"
#include "lookup/UpdateList.h"
#include "support/FakeLookupView.h"
#include "support/OtherProgram.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class UpdateLinksTest : public GameWorld
{
protected:
    UpdateLinksTest()
    {
        lookup.gameId = u"BLUS00001-and-more"_s;
        lookup.infoText = u"It's a Title"_s;
    }

    /// Row text, version, size, checksum, address; a part that is left out is no sub-item.
    void addRow(const QStringList& parts)
    {
        updates.addRow(parts.first());
        for (int item = 1; item < parts.size(); ++item)
            updates.setSubItem(updates.count(), static_cast<UpdateList::SubItem>(item), parts.at(item));
    }
    void addRows(const QStringList& addresses, const QString& size = u"1 MB"_s)
    {
        for (const QString& address : addresses)
            addRow({u"01.00"_s, u"3.55"_s, size, u"sha"_s, address});
    }
    void save() { saveUpdateLinks(shared, updates, lookup); }
    [[nodiscard]] QStringList stored(const QString& columns = u"Link || '=' || SIZE"_s) const
    {
        return database.column(u"SELECT %1 FROM PS3Links ORDER BY rowid"_s.arg(columns));
    }

    UpdateList updates;
    FakeLookupView lookup;
};

} // namespace

TEST_F(UpdateLinksTest, StoresTheFullRowsOnly)
{
    addRow({u"01.02"_s, u"3.55"_s, u"1 MB"_s, u"sha"_s, u"http://h/it's.pkg"_s});
    addRow({u"01.03"_s, u"N/A"_s, u""_s, u"sha"_s, u"no size"_s});
    addRow({u"01.04"_s, u"N/A"_s, u"1 MB"_s, u""_s, u"no checksum"_s});
    addRow({u"01.05"_s, u"N/A"_s, u"1 MB"_s, u"sha"_s});
    addRow({u""_s, u"N/A"_s, u"1 MB"_s, u"sha"_s, u"no version"_s});
    save();
    EXPECT_EQ(stored(u"GameID || '|' || GameName || '|' || PKG || '|' || FW || '|' || SIZE || '|' || SHA1 || "
                     "'|' || Link"_s),
              QStringList{u"BLUS00001|It's a Title|01.02|3.55|1 MB|sha|http://h/it's.pkg"_s});
    EXPECT_EQ(shared.SQLText, u"SELECT * FROM PS3Links "_s);
    EXPECT_FALSE(shared.DBConn.isOpen());
}

TEST_F(UpdateLinksTest, RefreshesEveryKnownLinkAndAddsTheOthers)
{
    addRows({u"a"_s, u"b"_s, u"c"_s});
    save();
    save();
    EXPECT_EQ(stored(), QStringList({u"a=1 MB"_s, u"b=1 MB"_s, u"c=1 MB"_s}));

    updates.clear();
    addRows({u"new 1"_s, u"B"_s, u"a"_s, u"new 2"_s, u"c"_s}, u"2 MB"_s);
    lookup.infoText = u"Newer"_s;
    save();
    EXPECT_EQ(stored(),
              QStringList({u"a=2 MB"_s, u"B=2 MB"_s, u"c=2 MB"_s, u"new 1=2 MB"_s, u"new 2=2 MB"_s}));
    EXPECT_EQ(stored(u"GameName"_s), QStringList(5, u"Newer"_s));
    EXPECT_FALSE(shared.DBConn.isOpen());
}

TEST_F(UpdateLinksTest, AKnownLinkWithAnApostropheEndsTheWalk)
{
    addRows({u"a"_s, u"it's"_s, u"c"_s});
    save();
    updates.clear();
    addRows({u"a"_s, u"it's"_s, u"c"_s, u"d"_s}, u"2 MB"_s);
    save();
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::badSyntax)});
    EXPECT_EQ(stored(), QStringList({u"a=2 MB"_s, u"it's=1 MB"_s, u"c=1 MB"_s}));
    EXPECT_FALSE(shared.DBConn.isOpen());
}

TEST_F(UpdateLinksTest, PassesOverARowThatAnotherUniqueColumnRefuses)
{
    database.execute(u"CREATE UNIQUE INDEX sums ON PS3Links (SHA1)"_s);
    addRows({u"a"_s, u"b"_s});
    addRow({u"01.00"_s, u"3.55"_s, u"1 MB"_s, u"other"_s, u"c"_s});
    save();
    EXPECT_EQ(stored(u"Link"_s), QStringList({u"a"_s, u"c"_s}));
    EXPECT_FALSE(shared.DBConn.isOpen());
}

TEST_F(UpdateLinksTest, ReportsAFailureAndClosesTheConnection)
{
    addRows({u"a"_s, u"b"_s});
    {
        const OtherProgram other(database.path(), "BEGIN IMMEDIATE");
        save();
    }
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::locked)});
    EXPECT_EQ(stored(), QStringList());
    save();
    EXPECT_EQ(stored().size(), 2) << "the file is free";

    database.execute(u"ALTER TABLE PS3Links RENAME TO Others"_s);
    save();
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::missingTable)});
    EXPECT_FALSE(shared.DBConn.isOpen());

    choose(root.path(u"gone.mdb"_s));
    save();
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::cannotOpen)});
}

} // namespace varnhold::test
