#include "CoverWorld.h"

#include "platform/MessagePump.h"
#include "platform/NetworkFetch.h"
#include "support/FakeFetch.h"
#include "support/RunningService.h"

#include <QDir>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

const QByteArray picture = QByteArray::fromHex("4749463839610200020091000000ff0000ff000000ffffffff"
                                               "2c0000000002000200000203443405003b");
constexpr auto noFile = "No File Exist!";

class CoverFetchTest : public CoverWorld
{
protected:
    CoverFetchTest()
    {
        setFolder();
        root.write(u"Settings.ini"_s,
                   "[ServerName]\r\n1=A\r\n2=EMPTY\r\n3=B\r\n[ServerUrl]\r\n1=http://a/\r\n3=http://b\r\n");
        servers.buildCoverServerMenu();
        fetcher.answers[u"http://a/BLUS30443.jpg"_s].body = picture;
    }
    CoverFetch make(FileFetch& port, MessagePump& with)
    {
        return CoverFetch({settings, folder, servers, port, boxes, sounds, with, *this, u"Varnhold"_s});
    }
    QStringList files() const { return QDir(root.path(u"covers"_s)).entryList(QDir::Files | QDir::Hidden); }

    FakeFetch fetcher;
};

} // namespace

TEST_F(CoverFetchTest, AsksTheServerThatWasClickedAndShowsWhatIsThere)
{
    CoverFetch fetch = make(fetcher, pump);
    root.write(u"covers/.varnhold-0123456789012345"_s, "left by a kill");
    fetch.mnuCServs_Click(1);
    EXPECT_EQ(root.read(u"covers/BLUS30443.jpg"_s), picture);
    EXPECT_EQ(files().size(), 1);
    EXPECT_EQ(shown, QStringList{root.path(u"covers/BLUS30443.jpg"_s)});
    EXPECT_EQ(statuses, (QStringList{u"Downloading http://a/BLUS30443.jpg..."_s, u"Done"_s}));
    EXPECT_EQ(busy, 0);

    // Refused: nothing is asked, and the old file shows. Allowed: the url without a "/" leads nowhere.
    const QString question = u"Over write this file?\r\n\r\nBLUS30443.jpg"_s;
    boxes.expect(question, u"Over Write?"_s, BoxAnswer::No);
    fetch.mnuCServs_Click(3);
    boxes.expect(question, u"Over Write?"_s, BoxAnswer::Yes);
    boxes.expect(QString::fromLatin1(noFile), u"Varnhold"_s);
    fetch.mnuCServs_Click(3);
    EXPECT_EQ(fetcher.asked, (QStringList{u"http://a/BLUS30443.jpg"_s, u"http://bBLUS30443.jpg"_s}));
    EXPECT_EQ(statuses.constLast(), u"404 - Requested Data Is Not available"_s);
    EXPECT_EQ(shown.size(), 3);
    EXPECT_EQ(root.read(u"covers/BLUS30443.jpg"_s), picture);

    // The file that is there in another case is the one that is replaced.
    root.write(u"covers/bces00001.JPG"_s, "old");
    selected = u"BCES00001"_s;
    fetcher.answers[u"http://a/BCES00001.jpg"_s].body = picture;
    boxes.expect(u"Over write this file?\r\n\r\nBCES00001.jpg"_s, u"Over Write?"_s, BoxAnswer::Yes);
    fetch.mnuCServs_Click(1);
    EXPECT_EQ(root.read(u"covers/bces00001.JPG"_s), picture);
    EXPECT_EQ(files().size(), 2);

    for (const QString& text : {u"a/b"_s, u"../BLUS30443"_s, QString(u'x').repeated(10'000)}) {
        selected = text;
        boxes.expect(QString::fromLatin1(noFile), u"Varnhold"_s);
        fetch.mnuCServs_Click(1);
        EXPECT_EQ(folder.find(text), QString());
    }
    EXPECT_EQ(fetcher.asked.size(), 3);

    settings.unwrittenValues().covers.tag.clear();
    boxes.expect(u"Please select Cover path in Settings / Covers"_s, u"Varnhold"_s);
    fetch.mnuCServs_Click(1);
    EXPECT_EQ(boxes.shown.constLast().icon, BoxIcon::Exclamation);
}

TEST_F(CoverFetchTest, ReadsNothingAgainAfterAWait)
{
    CoverFetch fetch = make(fetcher, pump);
    fetcher.underWay = [&] {
        EXPECT_TRUE(fetch.isRunning());
        EXPECT_EQ(busy, 1);
        fetch.mnuCServs_Click(1); // a second one is not started
        selected = u"BCES00001"_s;
        settings.unwrittenValues().covers.tag = root.path(u"elsewhere"_s);
    };
    fetch.mnuCServs_Click(1);
    EXPECT_EQ(fetcher.asked.size(), 1);
    EXPECT_EQ(root.read(u"covers/BLUS30443.jpg"_s), picture);
    EXPECT_TRUE(shown.isEmpty()) << "another game is selected by now";

    setFolder();
    selected = u"BLUS30443"_s;
    root.write(u"covers/BLUS30443.jpg"_s, "old");
    fetcher.underWay = [&] {
        fetch.cancel();
        pump.ending = true;
    };
    boxes.expect(u"Over write this file?\r\n\r\nBLUS30443.jpg"_s, BoxAnswer::Yes);
    fetch.mnuCServs_Click(1);
    EXPECT_EQ(root.read(u"covers/BLUS30443.jpg"_s), "old");
    EXPECT_TRUE(shown.isEmpty()) << "an exit touches nothing more";
}

TEST_F(CoverFetchTest, KeepsTheOldFileWhateverTheServerDoes)
{
    RunningService service;
    EventLoopPump real;
    NetworkFetch network(real, {});
    const QString target = root.write(u"covers/X.jpg"_s, "old");
    service.with([](host::SampleService& running) {
        running.site().addPage(u"/page.jpg"_s, "text/html", "<html>\xFF\xD8\xFF</html>");
        running.site().addPage(u"/webp.jpg"_s, "image/webp", "RIFF\x1A\0\0\0WEBPVP8 ");
        running.site().addPage(u"/half.jpg"_s, "image/gif", picture.chopped(1));
        running.site().addPage(u"/empty.jpg"_s, "image/gif", "");
        running.site().addPage(u"/good.jpg"_s, "image/gif", picture);
    });
    const QString noData = u"Requested Data Is Not available"_s;
    const QString broken = u"Failure occurred during download"_s;
    for (const QString& name : {u"page"_s, u"webp"_s, u"half"_s, u"empty"_s})
        EXPECT_EQ(fetchCover(network, service.url(u'/' + name + u".jpg"_s), target).why, noData);
    const struct
    {
        QString word;
        QString why;
    } rows[] = {
        {u"404"_s, u"404 - Requested Data Is Not available"_s},
        {u"status:403"_s, u"Requested navigation requires authentication"_s},
        {u"status:500"_s, u"Unable to load data from the server"_s},
        {u"early-close:5"_s, broken},
        {u"reset:5"_s, broken},
        {u"endless-redirect"_s, u"Attempt to redirect the navigation failed"_s},
        {u"redirect-self"_s, u"Attempt to redirect the navigation failed"_s},
        {u"huge-document"_s, broken},
    };
    for (const auto& row : rows) {
        service.misbehave(u"/good.jpg"_s, row.word);
        const CoverOutcome outcome = fetchCover(network, service.url(u"/good.jpg"_s), target);
        EXPECT_FALSE(outcome.isFetched) << row.word.toStdString();
        EXPECT_EQ(outcome.why, row.why) << row.word.toStdString();
    }
    EXPECT_EQ(fetchCover(network, u"ftp://h/x.jpg"_s, target).why, u"Protocol is not recognized"_s);
    EXPECT_EQ(fetchCover(network, u"https://"_s + service.httpsAuthority() + u"/good.jpg"_s, target).why,
              u"Navigation request has encountered a security issue"_s);
    EXPECT_EQ(root.read(u"covers/X.jpg"_s), "old");
    EXPECT_EQ(files(), QStringList{u"X.jpg"_s});
    service.misbehave(u"/good.jpg"_s, u"split-header"_s);
    EXPECT_TRUE(fetchCover(network, service.url(u"/good.jpg"_s), target).isFetched);
    EXPECT_EQ(root.read(u"covers/X.jpg"_s), picture);
}

} // namespace varnhold::test
