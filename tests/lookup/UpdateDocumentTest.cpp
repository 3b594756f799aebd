#include "lookup/UpdateDocument.h"

#include "LookupWorld.h"
#include "platform/RunTimeError.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

const QString head = u"  <?xml version=\"1.0\"?>\r\n<titlepatch>"_s;
const QString title = u"<TITLE>Game</TITLE>"_s;
const QString full =
    u"\r\n  <package version=\"01.01\" size=\"1805056\" sha1sum=\"aa\" url=\"http://h/a.pkg\" "
    u"ps3_system_ver=\"03.5500\" />"_s;

const QString fullRow = u"01.01|03.5500|1.72 MB (1805056 bytes)|aa|http://h/a.pkg"_s;

QString package(const QString& attributes)
{
    return u"\r\n  <package "_s + attributes + u" />"_s;
}

struct Case
{
    const char* name;
    QString text;
    QStringList rows;
    QString blank;
    int error = 0;            ///< of the report; 0: none
    QString info = u"Game"_s; ///< the title shown
};

const Case cases[] = {
    {"one package", head + full + title, {fullRow}, u"[1 Updates]"_s},
    {"no package", head + title, {}, u""_s},
    {"no system version anywhere",
     head + package(u"version=\"1\" size=\"0\""_s) + title,
     {u"1|N/A|0 Bytes (0 bytes)||"_s},
     u"[1 Updates]"_s},
    {"a missing system version shifts the later ones",
     head + package(u"version=\"1\" ps3_system_ver=\"a\""_s) + package(u"version=\"2\""_s) +
         package(u"version=\"3\" ps3_system_ver=\"c\""_s) + title,
     {u"1|a|||"_s, u"2|c|||"_s, u"3|N/A|||"_s},
     u"[3 Updates]"_s},
    {"a stray url loses nothing",
     head + full + full + u"<x url=\"y\">"_s + title,
     {fullRow, fullRow},
     u"[2 Updates]"_s},
    {"a stray size costs sums and urls",
     head + full + u"<x psize=\"5\">"_s + title,
     {u"01.01|03.5500|1.72 MB (1805056 bytes)||"_s},
     u"[1 Update]"_s},
    {"a stray size is read before its row is missed",
     head + full + u"<x size=\"y\">"_s + title,
     {u"01.01|03.5500|1.72 MB (1805056 bytes)||"_s},
     u""_s,
     13,
     u"before"_s},
    {"an empty version keeps the ordinals",
     head + package(u"version=\"\" size=\"1\""_s) + package(u"version=\"2\" size=\"2\""_s) + title,
     {u"2|N/A|1 Bytes (1 bytes)||"_s},
     u"[1 Update]"_s},
    {"empty values leave the cell",
     head + package(u"version=\"1\" size=\"\" url=\"u\""_s) + title,
     {u"1|N/A|||u"_s},
     u"[1 Updates]"_s},
    {"a size that is no number",
     head + full + package(u"version=\"2\" size=\"2 MB\" url=\"u\""_s) + title,
     {u"01.01|03.5500|1.72 MB (1805056 bytes)||"_s, u"2|N/A|||"_s},
     u""_s,
     13,
     u"before"_s},
    {"no title", head + full, {fullRow}, u""_s, 5, u"before"_s},
    {"no end of the title", head + full + u"<TITLE>Game"_s, {fullRow}, u""_s, 5, u"before"_s},
    {"the first of two titles", head + u"<TITLE> One </TITLE><TITLE>Two</TITLE>"_s, {}, u""_s, 0, u"One"_s},
    {"a title in a title", head + u"<TITLE> A <TITLE> B</TITLE>"_s, {}, u""_s, 0, u"A  B"_s},
    {"a value ends where the next marker begins",
     head + title + u"<package version=\"1<package version=\"2\""_s,
     {u"1|N/A|||"_s, u"2|N/A|||"_s},
     u"[2 Updates]"_s},
    {"a marker inside a value counts",
     head + full + package(u"version=\"2 size=\"7\""_s) + title,
     {fullRow, u"2 size=|N/A|7 Bytes (7 bytes)||"_s},
     u"[2 Updates]"_s},
    {"a line end inside a marker is taken out first",
     head + u"<package ver\r\nsion=\"1\r\n2\" />"_s + title,
     {u"12|N/A|||"_s},
     u"[1 Updates]"_s},
    {"without the viewer's marks the front is a value of its own",
     u"<x>"_s + full + title,
     {u"<x>  ||||"_s, u"01.01||||"_s},
     u"[2 Updates]"_s},
    {"zero characters and half surrogates pass",
     head + package(u"version=\"1"_s + QChar(0) + QChar(0xD800) + u"\""_s) + title,
     {u"1"_s + QChar(0) + QChar(0xD800) + u"|N/A|||"_s},
     u"[1 Updates]"_s},
};

class UpdateDocumentTest : public testing::Test, protected LookupWorld
{
protected:
    void parse(const QString& text)
    {
        state.XMLText = text;
        document.Fill_Updates(0);
    }
    UpdateDocument document{state, settings, list, view, boxes};
};

} // namespace

TEST(UpdateDocument, CutsAtMarkersAndPairsByOrdinal)
{
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        LookupWorld world;
        world.setCheck(Check::RemoveUnw, false);
        world.view.infoText = u"before"_s;
        world.view.titles = {u"old"_s};
        if (one.error != 0)
            world.boxes.expect(
                reportText(one.error, RunTimeError(one.error).description(), u"Err Description: "_s),
                u"ErrorException"_s);
        world.state.XMLText = one.text;
        UpdateDocument document(world.state, world.settings, world.list, world.view, world.boxes);
        document.Fill_Updates(0);
        EXPECT_EQ(world.rows(), one.rows);
        EXPECT_EQ(world.view.blank, one.blank);
        EXPECT_EQ(world.view.infoText, one.info);
        EXPECT_EQ(world.view.titles, QStringList{one.error == 0 ? one.info : u"old"_s});
        EXPECT_EQ(world.view.autosized, one.error == 0 ? 1 : 0);
    }
}

TEST_F(UpdateDocumentTest, RewritesTheTextAndStartsAfresh)
{
    state.PkgMark = 7;
    parse(head + full + full + title);
    parse(head + full + title);
    EXPECT_EQ(state.XMLText, u"\"1.0\"?><titlepatch>"_s + QString(full).remove(u"\r\n"_s) + title);
    EXPECT_EQ(state.PkgMark, 0);
    state.XMLText.fill(u'#');
    EXPECT_EQ(rows(), QStringList{fullRow});
    EXPECT_EQ(document.title(), u"Game"_s);
    EXPECT_EQ(list.index(0, 0).data(UpdateList::IconKeyRole), u"pkg"_s);
    EXPECT_EQ(list.index(0, 1).data(UpdateList::IconKeyRole), u""_s);
    parse(head + package(u"version=\"1\""_s) + title);
    EXPECT_EQ(list.index(0, 1).data(UpdateList::IconKeyRole), u"n/a"_s);
}

TEST_F(UpdateDocumentTest, CutsAlikeWhereverALineEndsInALongText)
{
    const QString front = head + u"<p>"_s + QString(5000, u'.');
    const QString part = full + title;
    parse(front + part);
    const QStringList expected = rows();
    for (qsizetype place = 0; place <= part.size(); ++place) {
        parse(front + QString(part).insert(place, u"\r\n"_s));
        ASSERT_EQ(rows(), expected) << place;
        ASSERT_EQ(document.title(), u"Game"_s) << place;
    }
}

TEST_F(UpdateDocumentTest, SavesLinksAtTheEndOfEachParseThatHasATitle)
{
    QStringList saved;
    document.setLinkSaver([&] { saved.append(view.info() + u' ' + list.icon(1)); });
    parse(head + full + title);
    EXPECT_EQ(saved, QStringList());
    setCheck(Check::DBLinks, true);
    parse(head + full + title);
    parse(head + full + u"<x url=\"y\">"_s + title); // over Find_Title
    EXPECT_EQ(saved, QStringList({u"Game pkg"_s, u"Game pkg"_s}));
    boxes.expect(reportText(5, u"Invalid procedure call or argument"_s, u"Err Description: "_s));
    parse(head + full);
    EXPECT_EQ(saved.size(), 2);
}

TEST_F(UpdateDocumentTest, KeepsTheRowsThatAnIndexReaches)
{
    const QString short_ = u"<package version=\"1\"/>\r\n"_s;
    boxes.expect(reportText(6, u"Overflow"_s, u"Err Description: "_s));
    parse(head + short_.repeated(100'000) + title);
    EXPECT_EQ(list.count(), 32767);
    parse(head + short_.repeated(32767) + title);
    EXPECT_EQ(view.blank, u"[32767 Updates]"_s);
}

} // namespace varnhold::test
