// The delivered game database as a stranger reads it: as an SQLite file.

#include "DatabaseFile.h"
#include "NotesMarkup.h"
#include "SkinDesign.h"
#include "SkinFiles.h"
#include "gamedb/RegionImages.h"
#include "host/Titles.h"
#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QSet>

#include <sqlite3.h>

#include <map>
#include <memory>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QString name;
    QByteArray notes;
    QByteArray image;
};
using Table = std::map<QString, Row>;

QByteArray contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

std::vector<assets::Title> listedTitles()
{
    return assets::readTitles(QString::fromUtf8(contents(QStringLiteral(VARNHOLD_TITLES))));
}

class DatabaseTest : public testing::Test
{
protected:
    /// The file that the build made.
    static const QByteArray& bytes()
    {
        static const QByteArray delivered = contents(QStringLiteral(VARNHOLD_DELIVERED_DATABASE));
        return delivered;
    }

    DatabaseTest()
    {
        place.write(u"GameDB.mdb"_s, bytes());
        sqlite3* opened = nullptr;
        EXPECT_EQ(sqlite3_open_v2(place.path(u"GameDB.mdb"_s).toUtf8().constData(), &opened,
                                  SQLITE_OPEN_READWRITE, nullptr),
                  SQLITE_OK);
        database.reset(opened);
    }

    /// The answer's columns as bytes, row by row.
    std::vector<QByteArrayList> ask(const char* question)
    {
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(database.get(), question, -1, &statement, nullptr), SQLITE_OK)
            << question;
        std::vector<QByteArrayList> answer;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            answer.emplace_back();
            for (int i = 0; i < sqlite3_column_count(statement); ++i)
                answer.back() << QByteArray(static_cast<const char*>(sqlite3_column_blob(statement, i)),
                                            sqlite3_column_bytes(statement, i));
        }
        sqlite3_finalize(statement);
        return answer;
    }

    Table table(const char* question)
    {
        Table rows;
        for (const QByteArrayList& row : ask(question))
            rows[QString::fromUtf8(row[0])] = {QString::fromUtf8(row[1]), row[2], row[3]};
        return rows;
    }
    Table games() { return table("SELECT GameID, GameName, GameNotes, GameImage FROM PS3Games"); }
    Table personal() { return table("SELECT GameID, GameName, GameNotes, GameImage FROM PS3Personal"); }

    TempRoot place;
    std::unique_ptr<sqlite3, int (*)(sqlite3*)> database{nullptr, sqlite3_close};
};

} // namespace

TEST_F(DatabaseTest, IsOneSoundFileThatTakesWrites)
{
    EXPECT_EQ(ask("PRAGMA integrity_check")[0][0], "ok");
    EXPECT_EQ(ask("PRAGMA journal_mode")[0][0], "delete");
    EXPECT_EQ(ask("PRAGMA page_size")[0][0], "4096");
    EXPECT_EQ(ask("PRAGMA encoding")[0][0], "UTF-8");
    EXPECT_EQ(ask("PRAGMA freelist_count")[0][0], "0");
    ASSERT_EQ(sqlite3_exec(database.get(), "DELETE FROM PS3Games WHERE GameID='bcus10001'", nullptr, nullptr,
                           nullptr),
              SQLITE_OK);
    EXPECT_EQ(sqlite3_changes(database.get()), 1) << "ids have no case";
    EXPECT_EQ(ask("PRAGMA integrity_check")[0][0], "ok");
    for (const char* statement : {"INSERT INTO PS3Games (GameID) VALUES ('blus30443')",
                                  "INSERT INTO PS3Personal (GameID) VALUES ('blus30443')",
                                  "INSERT INTO PS3Links (Link) VALUES ('http://a/B'), ('http://A/b')"})
        EXPECT_EQ(sqlite3_exec(database.get(), statement, nullptr, nullptr, nullptr), SQLITE_CONSTRAINT)
            << statement;
    EXPECT_TRUE(ask("SELECT GameID, GameName, PKG, FW, SIZE, SHA1, Link FROM PS3Links").empty());
}

TEST_F(DatabaseTest, TheSameTitlesGiveTheSameBytes)
{
    EXPECT_TRUE(QByteArray::fromStdString(assets::databaseFile(listedTitles())) == bytes());
}

TEST_F(DatabaseTest, HoldsTitlesOfAllRegionsAndOfTheSampleService)
{
    const Table all = games();
    EXPECT_GE(all.size(), 190U);
    QSet<int> regions;
    QSet<QString> prefixes;
    for (const auto& [id, row] : all) {
        EXPECT_EQ(id.size(), 9) << qPrintable(id);
        EXPECT_EQ(row.name, row.name.trimmed()) << qPrintable(id);
        EXPECT_FALSE(row.name.isEmpty()) << qPrintable(id);
        regions << regionImage(id);
        prefixes << id.left(4);
    }
    EXPECT_EQ(regions.size(), 7) << "one row at least with each of the flags";
    for (const host::SampleTitle& sample : host::sampleTitles()) {
        ASSERT_EQ(all.count(sample.id), 1U) << qPrintable(sample.id);
        EXPECT_EQ(all.at(sample.id).name, sample.name);
    }
    const Table own = personal();
    EXPECT_GE(own.size(), 50U);
    EXPECT_LT(own.size(), all.size());
    int ownNotes = 0;
    for (const auto& [id, row] : own) {
        ASSERT_EQ(all.count(id), 1U) << qPrintable(id);
        EXPECT_EQ(all.at(id).name, row.name);
        EXPECT_EQ(all.at(id).image, row.image) << qPrintable(id);
        ownNotes += all.at(id).notes != row.notes ? 1 : 0;
        prefixes.remove(id.left(4));
    }
    EXPECT_TRUE(prefixes.isEmpty()) << "the user's own of every region: "
                                    << qPrintable(QStringList(prefixes.values()).join(u' '));
    EXPECT_GE(ownNotes, 8);
}

TEST_F(DatabaseTest, EveryPictureIsACoverOfTheSeries)
{
    QSet<QByteArray> pictures;
    for (const auto& [id, row] : games()) {
        if (row.image.isEmpty())
            continue;
        const QImage cover = QImage::fromData(row.image);
        EXPECT_EQ(cover.size(), QSize(256, 296)) << qPrintable(id);
        pictures << row.image;
        // Printed: neither empty nor noise.
        EXPECT_GT(row.image.size(), 8000) << qPrintable(id);
        EXPECT_LT(row.image.size(), 70000) << qPrintable(id);
    }
    EXPECT_GE(pictures.size(), 40);
}

TEST_F(DatabaseTest, NotesReadAsTheyWereWritten)
{
    const Table all = games();
    const Table own = personal();
    const auto check = [](const assets::NotesSource& source, const QByteArray& stored) {
        const RichText read = readRtf(stored);
        EXPECT_EQ(stored.startsWith("{\\rtf1"), source.rich);
        if (source.rich)
            EXPECT_EQ(read.paragraphs, assets::richNotes(source.lines).paragraphs);
        else
            EXPECT_EQ(read.plainText(), source.lines.join(u'\n'));
    };
    for (const assets::Title& title : listedTitles()) {
        SCOPED_TRACE(qPrintable(title.id));
        check(title.notes, all.at(title.id).notes);
        if (!title.ownNotes.lines.isEmpty())
            check(title.ownNotes, own.at(title.id).notes);
    }
}

TEST(Notes, TurnMarksIntoFormats)
{
    const std::pair<QString, QByteArray> cases[] = {
        {u"# A"_s, "\\fs22"},        {u"- A"_s, "\\pnlvlblt"},
        {u": A :: b"_s, "\\tx1320"}, {u"\" A"_s, "\\ri360"},
        {u"^ A"_s, "\\qc"},          {u">> A"_s, "\\qr"},
        {u"*A*"_s, "\\b"},           {u"_A_"_s, "\\i"},
        {u"~A~"_s, "\\strike"},      {u"{rust|A}"_s, "\\red201\\green91\\blue40;"},
    };
    const QByteArray plain = writeRtf(assets::richNotes({u"A"_s}));
    for (const auto& [line, word] : cases) {
        EXPECT_TRUE(writeRtf(assets::richNotes({line})).contains(word)) << qPrintable(line);
        EXPECT_FALSE(plain.contains(word + ' ')) << word.constData();
    }
}

TEST(Notes, InksCanBeReadOnEverySkin)
{
    for (const assets::NotesInk& ink : assets::notesInks) {
        const QColor letters(static_cast<int>(ink.color & 0xFF), static_cast<int>(ink.color >> 8 & 0xFF),
                             static_cast<int>(ink.color >> 16));
        for (const assets::SkinDesign& design : assets::skinDesigns())
            EXPECT_GE(contrast(letters, QColor(design.panel)), 4) << qPrintable(ink.name.toString());
    }
}

TEST(TitleList, SaysWhichLineIsWrong)
{
    const auto errorOf = [](const QString& text) {
        try {
            assets::databaseFile(assets::readTitles(text));
            return std::string();
        } catch (const std::runtime_error& error) {
            return std::string(error.what());
        }
    };
    const std::pair<QString, std::string> cases[] = {
        {u"> alone"_s, "line 1 belongs to no title"},
        {u"; fine\n\nBLUS99999"_s, "line 3 has no name"},
        {u"BLUS99999  A\nBLUS99999  B"_s, "line 2 names a title that is there already"},
        {u"BLUS30443  Another"_s, "line 1 names a title that is there already"},
        {u"BLUS99999  A\n> plain\n| rich"_s, "line 3 mixes plain and rich notes"},
        {u"BLUS99999  A\nnonsense"_s, "line 2 is of no known form"},
        {u"BLUS99999  A\n@ coast mud A"_s, "BLUS99999: there is no cover coast mud"},
        {u"BLUS99999  A\n@ coast sea \u732b"_s, "BLUS99999: no letter is drawn for \u732b"},
        {u"BLUS99999  A\n| {mud|x}"_s, "BLUS99999: there is no ink mud"},
        {u"BLUS99999  A\n| *open"_s, "BLUS99999: a mark is not closed: *open"},
    };
    for (const auto& [text, error] : cases)
        EXPECT_EQ(errorOf(text), error) << qPrintable(text);
}

} // namespace varnhold::test
