#include "platform/NetworkFetch.h"
#include "platform/DownloadToFile.h"
#include "platform/MessagePump.h"
#include "platform/RunTimeError.h"
#include "state/HostAccess.h"

#include "support/PrintText.h"
#include "support/RunningService.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTimer>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

const QByteArray document(100'000, 'd');

class NetworkFetchTest : public testing::Test
{
protected:
    NetworkFetchTest()
    {
        service.with([](host::SampleService& running) {
            running.site().addPage(u"/doc"_s, "text/plain", document);
            running.site().addPage(u"/empty"_s, "text/plain", "");
        });
        root.write(u"target"_s, "old");
    }

    FetchResult get(const QString& url)
    {
        body.clear();
        return fetch.fetch(url, limits, [this](QByteArrayView piece) {
            body.append(piece);
            return true;
        });
    }
    FetchResult go(const QString& word)
    {
        service.misbehave(u"/doc"_s, word);
        return get(service.url(u"/doc"_s));
    }
    [[nodiscard]] QString secureUrl() const { return u"https://"_s + service.httpsAuthority() + u"/doc"_s; }

    RunningService service;
    TempRoot root;
    Hosts hosts;
    EventLoopPump pump;
    NetworkFetch fetch{pump, [this](const QString& authority) { return tlsOf(hosts, authority); },
                       [this](const QString& url) { return reachableUrl(hosts, url); }};
    FetchLimits limits{.silence = std::chrono::milliseconds(300)};
    QByteArray body;
};

} // namespace

TEST_F(NetworkFetchTest, BringsWholeBodiesAndTellsWhyNot)
{
    constexpr int broken = -2146697208;
    constexpr int timedOut = -2146697205;
    constexpr int redirect = -2146697196;
    const struct
    {
        QString word;
        int error;
        int status;
    } rows[] = {
        {u"split-header"_s, 0, 200},       {u"no-length"_s, 0, 200},
        {u"redirect-port"_s, 0, 200},      {u"404"_s, 0, 404},
        {u"status:503"_s, 0, 503},         {u"early-close"_s, broken, 200},
        {u"reset:9"_s, broken, 200},       {u"endless-redirect"_s, redirect, 0},
        {u"redirect-self"_s, redirect, 0}, {u"stall"_s, timedOut, 0},
        {u"stall:9"_s, timedOut, 200},     {u"huge-document"_s, broken, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.word.toStdString());
        const FetchResult result = go(row.word);
        EXPECT_EQ(result.error, row.error);
        EXPECT_EQ(result.status, row.status);
        EXPECT_EQ(result.isOk(), row.error == 0 && row.status == 200);
        EXPECT_TRUE(result.isOk() ? body == document : row.status == 200 || body.isEmpty());
    }
    EXPECT_EQ(get(u"ftp://127.0.0.1/x"_s).error, -2146697203);
    EXPECT_EQ(get(u"javascript:alert(1)"_s).error, -2146697203);
    EXPECT_EQ(get(u"no url"_s).error, -2146697214);
}

TEST_F(NetworkFetchTest, EndsADripASinkThatIsFullAndWhatIsCancelled)
{
    limits.whole = std::chrono::milliseconds(500);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(go(u"slow-drip:100"_s).error, -2146697205);
    EXPECT_LT(time.elapsed(), 5000);

    limits.whole = std::chrono::minutes(5);
    QTimer::singleShot(100, [this] { fetch.cancel(); });
    EXPECT_EQ(go(u"slow-drip:100"_s).error, -2146697205);

    service.misbehave(u"/doc"_s, u"no-length"_s);
    const QString url = service.url(u"/doc"_s);
    EXPECT_EQ(fetch.fetch(url, limits, [](QByteArrayView) { return false; }).error, -2146697208);
    EXPECT_THROW(
        fetch.fetch(url, limits, [](QByteArrayView) -> bool { throw RunTimeError(errors::pathFileAccess); }),
        RunTimeError);
    limits.bytes = document.size() - 1;
    EXPECT_EQ(get(url).error, -2146697208);

    service.misbehave(u"/doc"_s, u"slow-drip:100"_s);
    const FetchResult head = fetch.head(url, limits);
    EXPECT_TRUE(head.isOk());
    EXPECT_EQ(head.toldLength, document.size()) << "a head is told whatever the limit of a body";

    limits.bytes = document.size();
    QTimer::singleShot(100, [this] { pump.end(); });
    EXPECT_FALSE(get(url).isOk()) << "the program's end ends it";
}

TEST_F(NetworkFetchTest, FollowsThePolicyOfAnyHostAndFindsTheSampleService)
{
    EXPECT_EQ(get(secureUrl()).error, -2146697202) << "an unknown authority is refused without a question";
    hosts.forum = {service.httpsAuthority(), service.caFile(), false};
    EXPECT_TRUE(get(secureUrl()).isOk());

    const QString sample = u"http://sample/a%20b.jpg"_s;
    EXPECT_EQ(reachableUrl(hosts, sample), sample);
    hosts.sample = true;
    hosts.imageSearch.authority = service.httpAuthority();
    hosts.servers.front() = hosts.forum;
    EXPECT_EQ(reachableUrl(hosts, sample), service.url(u"/a%20b.jpg"_s));
    EXPECT_EQ(reachableUrl(hosts, u"http://sample.example/"_s), u"http://sample.example/"_s);
    EXPECT_TRUE(get(u"http://sample/doc"_s).isOk());
    EXPECT_TRUE(get(u"https://sample/doc"_s).isOk());
}

TEST_F(NetworkFetchTest, ReplacesAFileInOneStepOrLeavesItAlone)
{
    const QString target = root.path(u"target"_s);
    const auto left = [&] { return QDir(root.path(u"."_s)).entryList(QDir::Files | QDir::Hidden).size(); };
    const auto before = left();
    FetchResult result;
    for (const QString& word : {u"404"_s, u"early-close"_s, u"stall:9"_s, u"endless-redirect"_s}) {
        service.misbehave(u"/doc"_s, word);
        EXPECT_FALSE(Download_To_File(fetch, service.url(u"/doc"_s), target, limits, {}, &result));
        EXPECT_EQ(root.read(u"target"_s), "old") << word.toStdString();
    }
    service.misbehave(u"/doc"_s, u"split-header"_s);
    const QString url = service.url(u"/doc"_s);
    const auto refuse = [&](const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == document);
        EXPECT_EQ(root.read(u"target"_s), "old");
        return false;
    };
    EXPECT_FALSE(Download_To_File(fetch, url, target, limits, refuse, &result));
    EXPECT_TRUE(result.isOk());
    EXPECT_EQ(root.read(u"target"_s), "old");
    EXPECT_FALSE(Download_To_File(fetch, url, root.path(u"gone/target"_s), limits, {}, &result));
    EXPECT_EQ(result.error, -2146697208);
    EXPECT_FALSE(QDir(root.path(u"gone"_s)).exists());

    EXPECT_TRUE(Download_To_File(fetch, url, target, limits, {}, &result));
    EXPECT_TRUE(root.read(u"target"_s) == document);
    EXPECT_TRUE(Download_To_File(fetch, service.url(u"/empty"_s), target, limits));
    EXPECT_EQ(root.read(u"target"_s), "");
    EXPECT_EQ(left(), before);
}

} // namespace varnhold::test
