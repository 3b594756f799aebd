#include "gamedb/EntryDetails.h"
#include "GameWorld.h"
#include "covers/CoverFolder.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class EntryDetailsTest : public GameWorld
{
protected:
    EntryDetailsTest()
    {
        window.games = {u"any"_s};
        settings.setCovers({u"covers"_s, root.path(u"covers"_s)});
        for (const QString& id : {u"STORED"_s, u"COVER"_s, u"EMPTY"_s, u"STRANGER"_s})
            root.write(u"covers/"_s + id + u".jpg"_s, "jpg");
        database.addGames(u"PS3Games"_s, {{u"STORED"_s, u"a"_s, u"{\\rtf1 Notes}"_s, picture},
                                          {u"COVER"_s, u"b"_s, u"plain's"_s},
                                          {u"EMPTY"_s, u"c"_s, u""_s, QByteArray("")},
                                          {u"BARE"_s, {}}});
    }

    QStringList load(const QString& id)
    {
        window.gameId = id;
        loadGameDetails(shared, settings, CoverFolder(settings), window);
        return window.taken();
    }
    [[nodiscard]] QString cover(const QString& id) const
    {
        return u"cover "_s + root.path(u"covers/"_s + id);
    }

    const QByteArray picture = QByteArray("BM\0\1\xff", 5).repeated(100'000);
};

} // namespace

TEST_F(EntryDetailsTest, ShowsNotesAndTheFirstPictureThatThereIs)
{
    struct Case
    {
        QString id;
        QString notes;
        QString shown;
    };
    const Case cases[] = {
        {u"STORED"_s, u"{\\rtf1 Notes}"_s, u"stored picture"_s},
        {u"stored"_s, u"{\\rtf1 Notes}"_s, u"stored picture"_s},
        {u"COVER"_s, u"plain's"_s, cover(u"COVER.jpg"_s)},
        {u"EMPTY"_s, u""_s, cover(u"EMPTY.jpg"_s)}, // a picture of no bytes is none
        {u"BARE"_s, u""_s, u"blank picture"_s},
        {u"STRANGER"_s, u""_s, cover(u"STRANGER.jpg"_s)}, // not in the table
        {u""_s, u""_s, u"blank picture"_s},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(load(one.id),
                  QStringList({u"busy"_s, u"notes "_s + one.notes, one.shown, u"links"_s, u"idle"_s}))
            << qPrintable(one.id);
        EXPECT_EQ(shared.DBKey, one.id);
        EXPECT_EQ(shared.SQLText, u"SELECT * FROM PS3Games where GameID='"_s + one.id + u"';"_s);
        EXPECT_FALSE(shared.DBConn.isOpen());
    }
    EXPECT_EQ(window.picture, picture);

    settings.setCovers({});
    EXPECT_TRUE(load(u"COVER"_s).contains(u"blank picture"_s));
}

TEST_F(EntryDetailsTest, DoesNothingWithAnEmptyList)
{
    window.games.clear();
    EXPECT_EQ(load(u"STORED"_s), QStringList());
}

TEST_F(EntryDetailsTest, ShowsNothingOfAnEntryThatCannotBeReadWhole)
{
    database.execute(u"ALTER TABLE PS3Games DROP COLUMN GameImage"_s);
    EXPECT_EQ(load(u"STORED"_s), QStringList({u"busy"_s, u"idle"_s}));
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::unknownColumn)});
}

TEST_F(EntryDetailsTest, ReportsAPictureThatIsDamaged)
{
    const QByteArray whole = root.read(u"GameDB.mdb"_s);
    const qsizetype page = whole.indexOf(picture.first(1'000)) / 4'096 + 9;
    QByteArray damaged = whole.first(page * 4'096); // the rest of the picture is gone
    root.write(u"GameDB.mdb"_s, damaged.append(whole.size() - damaged.size(), '\xff'));
    EXPECT_EQ(load(u"STORED"_s), QStringList({u"busy"_s, u"idle"_s}));
    EXPECT_EQ(boxes.taken().size(), 1);
}

TEST_F(EntryDetailsTest, ReportsAnIdThatBreaksTheStatement)
{
    EXPECT_EQ(load(u"x' or GameID='STORED"_s), QStringList({u"busy"_s, u"idle"_s}));
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::badSyntax)});
    EXPECT_EQ(load(u"STORED"_s), QStringList({u"busy"_s, u"idle"_s}));
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::objectOpen)});
    EXPECT_TRUE(load(u"STORED"_s).contains(u"stored picture"_s));
}

} // namespace varnhold::test
