#include "platform/RunTimeError.h"
#include "support/PrintText.h"
#include "support/RunningService.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QHash>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace varnhold::test {
namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 5000; ///< milliseconds

struct Exchange
{
    QByteArray head;
    QByteArray body;

    [[nodiscard]] int status() const { return head.split(' ').value(1).toInt(); }
    [[nodiscard]] QByteArray header(const QByteArray& name) const
    {
        for (const QByteArray& line : head.split('\n'))
            if (line.startsWith(name + ": "))
                return line.sliced(name.size() + 2).trimmed();
        return "none";
    }
};

/// Sends the bytes and takes what comes until the peer closes, or the limit is passed.
Exchange exchange(QTcpSocket& socket, const QByteArray& sent, qsizetype limit = 100'000'000)
{
    Exchange seen;
    socket.write(sent);
    QByteArray all;
    while (all.size() < limit && socket.waitForReadyRead(patience))
        all += socket.readAll();
    const qsizetype end = all.indexOf("\r\n\r\n");
    seen.head = end < 0 ? all : all.first(end + 4);
    seen.body = all.sliced(seen.head.size());
    return seen;
}

Exchange send(const RunningService& service, const QByteArray& bytes, qsizetype limit = 100'000'000)
{
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, service.httpPort());
    return exchange(socket, bytes, limit);
}

Exchange get(const RunningService& service, const QByteArray& target, qsizetype limit = 100'000'000)
{
    return send(service, "GET " + target + " HTTP/1.0\r\nHost: 127.0.0.1\r\n\r\n", limit);
}

/// True when the answer ends in a reset. Asked of the system, since Qt's socket calls a reset an orderly end.
bool endsInReset(const RunningService& service, const QByteArray& target)
{
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, service.httpPort());
    if (!socket.waitForConnected(patience))
        return false;
    const int descriptor = ::dup(static_cast<int>(socket.socketDescriptor()));
    ::fcntl(descriptor, F_SETFL, 0);
    const QByteArray request = "GET " + target + " HTTP/1.0\r\n\r\n";
    ssize_t count = ::send(descriptor, request.constData(), static_cast<std::size_t>(request.size()), 0);
    std::array<char, 4096> buffer{};
    while (count > 0)
        count = ::recv(descriptor, buffer.data(), buffer.size(), 0);
    const bool reset = count < 0 && errno == ECONNRESET;
    ::close(descriptor);
    return reset;
}

QByteArray targetOf(const QByteArray& url)
{
    return url.sliced(url.indexOf('/', 8));
}

QByteArray attribute(const QByteArray& element, const QByteArray& name)
{
    const qsizetype start = element.indexOf(name + "=\"") + name.size() + 2;
    return element.sliced(start, element.indexOf('"', start) - start);
}

class SampleService : public testing::Test
{
protected:
    static void SetUpTestSuite() { service = std::make_unique<RunningService>(); }
    static void TearDownTestSuite() { service.reset(); }

    static std::unique_ptr<RunningService> service;
};

std::unique_ptr<RunningService> SampleService::service;

TEST_F(SampleService, AnswersOnEveryPathBase)
{
    const struct
    {
        QByteArray target;
        int status;
    } cases[] = {
        {"/tpl/np/BCUS10001/BCUS10001-ver.xml", 200},
        {"/tppkg/np/'BCUS10001/BCUS10001-ver.xml", 200},
        {"/tppkg/prod-qa/'BCUS10001/BCUS10001-ver.xml", 200},
        {"/tpl/sp-int/'BCUS10001/BCUS10001-ver.xml", 200},
        {"/tppkg/sp-int/'BCUS10001/BCUS10001-ver.xml", 200},
        {"/tpl/prod-qa/BCUS10001/BCUS10001-ver.xml", 200},
        // The apostrophe belongs to the path, raw and only where it stands.
        {"/tppkg/np/BCUS10001/BCUS10001-ver.xml", 404},
        {"/tppkg/np/%27BCUS10001/BCUS10001-ver.xml", 404},
        {"/tpl/np/'BCUS10001/BCUS10001-ver.xml", 404},
        {"/tpl/np/bcus10001/bcus10001-ver.xml", 404},
        {"/tpl/np/BCUS10001/BCUS10027-ver.xml", 404},
        {"/tpl/np/XXXX00000/XXXX00000-ver.xml", 404},
        {"/Varnhold/txt/version.txt", 200},
        {"/Varnhold/ps3gameids.txt", 200},
        {"/anywhere/BCUS10001.jpg", 200},
        {"/anywhere/XXXX00000.jpg", 404},
        {"/images?q=lantern", 200},
        {"/moved/Varnhold/txt/version.txt", 302},
    };
    for (const auto& row : cases) {
        const Exchange seen = get(*service, row.target);
        EXPECT_EQ(seen.status(), row.status) << row.target.constData();
        EXPECT_EQ(seen.header("Content-Length"), QByteArray::number(seen.body.size()))
            << row.target.constData();
    }
    EXPECT_EQ(get(*service, "/Varnhold/txt/version.txt").body, QByteArray(VARNHOLD_VERSION "\r\n"));
}

TEST_F(SampleService, SumsOfDocumentsAreTrue)
{
    int wholes = 0;
    int tails = 0;
    for (const host::SampleTitle& title : host::sampleTitles()) {
        if (title.packages.back().size > 9'000'000)
            continue;
        const QByteArray id = title.id.toLatin1();
        const QByteArray document = get(*service, "/tppkg/np/'" + id + '/' + id + "-ver.xml").body;
        EXPECT_TRUE(document.contains("<TITLE>" + title.name.toHtmlEscaped().toUtf8() + "</TITLE>"));
        const QList<QByteArray> elements = document.split('<');
        std::size_t index = 0;
        for (const QByteArray& element : elements) {
            if (!element.startsWith("package version=\""))
                continue;
            const host::SamplePackage& package = title.packages.at(index++);
            EXPECT_EQ(element.contains("ps3_system_ver"), !package.systemVersion.isEmpty());
            Exchange seen = get(*service, targetOf(attribute(element, "url")));
            if (title.moved) {
                EXPECT_EQ(seen.status(), 302);
                seen = get(*service, targetOf(seen.header("Location")));
            }
            EXPECT_EQ(attribute(element, "size"), QByteArray::number(seen.body.size()));
            const QByteArray inner =
                QCryptographicHash::hash(seen.body.chopped(32), QCryptographicHash::Sha1);
            EXPECT_EQ(seen.body.last(32), inner + QByteArray(12, '\0')) << id.constData();
            const bool whole = title.sumOf == host::SumOf::WholeFile;
            ++(whole ? wholes : tails);
            const QByteArray sum =
                whole ? QCryptographicHash::hash(seen.body, QCryptographicHash::Sha1) : inner;
            EXPECT_EQ(attribute(element, "sha1sum"), sum.toHex()) << id.constData();
        }
        EXPECT_EQ(index, title.packages.size());
    }
    EXPECT_GT(wholes, 5);
    EXPECT_GT(tails, 5);
}

TEST_F(SampleService, KnowsTheDeliveredTitlesAndSomeOddOnes)
{
    QHash<QString, std::size_t> counts;
    int without = 0;
    for (const host::SampleTitle& title : host::knownTitles()) {
        EXPECT_FALSE(counts.contains(title.id)) << title.id.toStdString();
        counts.insert(title.id, title.packages.size());
        without += title.packages.empty() ? 1 : 0;
        EXPECT_TRUE(title.packages.size() <= 8 || title.id == u"BLUS31300") << title.id.toStdString();
    }
    EXPECT_EQ(without, 5);
    EXPECT_EQ(counts.value(u"BCUS10001"_s), 1U) << "titles with packages of their own keep them";

    const auto document = [&](const QByteArray& id) {
        return get(*service, "/tpl/np/" + id + '/' + id + "-ver.xml");
    };
    EXPECT_EQ(document("HMBR12345").status(), 404);
    const struct
    {
        const char* id;
        qsizetype packages;
        qsizetype urls;
        QByteArray says;
    } cases[] = {
        {"BLUS31300", 24, 24, "A0124-V0100.pkg"}, {"BLUS31301", 1, 1, "Salt/Silver"},
        {"BLUS31302", 2, 1, "version=\"01.02\""}, {"BLUS31303", 2, 2, "version=\"01.02\""},
        {"BLUS31304", 1, 1, "-V0100.PKG\""},
    };
    for (const auto& row : cases) {
        const QByteArray body = document(row.id).body;
        EXPECT_EQ(body.count("<package "), row.packages) << row.id;
        EXPECT_EQ(body.count(" url="), row.urls) << row.id;
        EXPECT_TRUE(body.contains(row.says)) << body.constData();
    }
    EXPECT_EQ(document("BLUS31303").body.count("A0101-V0100.pkg"), 2);
    EXPECT_TRUE(host::madeUpIdList(100).startsWith(host::madeUpIdList(99)));
}

TEST_F(SampleService, ServesPicturesThatHarm)
{
    const auto cover = [&](const QByteArray& word, qsizetype limit = 100'000'000) {
        return get(*service, "/odd/" + word + "/covers/BCUS10001.jpg", limit);
    };
    EXPECT_EQ(cover("not-picture").header("Content-Type"), "image/jpeg");
    EXPECT_TRUE(cover("not-picture").body.startsWith("<html>"));
    EXPECT_EQ(get(*service, targetOf(cover("moved-to-page").header("Location"))).header("Content-Type"),
              "text/html; charset=utf-8");
    EXPECT_GT(cover("endless-body", 2'000'000).body.size(), 1'900'000);
    const QByteArray scans = cover("many-scans:50").body;
    EXPECT_EQ(scans.count("\xff\xda"), 50);
    EXPECT_TRUE(cover("told-size").body.contains("\xff\xff\xff\xff"));
    const Exchange half = cover("half-picture");
    EXPECT_EQ(half.header("Content-Length"), "none");
    EXPECT_EQ(half.body, get(*service, "/covers/BCUS10001.jpg").body.first(half.body.size()));
}

TEST_F(SampleService, FindsCoversAndEscapesWhatItEchoes)
{
    EXPECT_TRUE(get(*service, "/images?q=lantern+reach+PS3").body.contains("/covers/BCUS10001.jpg"));
    EXPECT_TRUE(get(*service, "/images?q=%E7%81%AF%E5%8F%B0").body.contains("/covers/BCJS10003.jpg"));
    const QByteArray odd = get(*service, "/images?q=%3Cb%3E%22nothing").body;
    EXPECT_TRUE(odd.contains("&lt;b&gt;&quot;nothing") && odd.contains("no cover")) << odd.constData();
}

TEST_F(SampleService, MisbehavesAsAsked)
{
    const QByteArray page(1000, 'p');
    service->with(
        [&](host::SampleService& running) { running.site().addPage(u"/page"_s, "text/plain", page); });
    const auto odd = [&](const QByteArray& word) { return get(*service, "/odd/" + word + "/page"); };
    EXPECT_TRUE(endsInReset(*service, "/odd/reset:300/page"));
    const Exchange chunk = odd("http-chunk:100");
    EXPECT_TRUE(chunk.body.sliced(100).startsWith("HTTP/1.1 500"));
    EXPECT_EQ(chunk.body.size(), page.size());
    const QByteArray hop = targetOf(odd("endless-redirect").header("Location"));
    EXPECT_TRUE(get(*service, hop).header("Location").endsWith("?hop=2"));
}

TEST(SampleServicePort, IsTheUsualOneWhenThatIsFree)
{
    host::SampleService first;
    first.start();
    const quint16 taken = first.httpPort();
    host::SampleService second;
    second.preferPort(taken);
    second.start();
    EXPECT_NE(second.httpPort(), 0);
    EXPECT_NE(second.httpPort(), taken);
    host::SampleService refused;
    refused.preferPort(second.otherPort());
    EXPECT_THROW(refused.start(taken), RunTimeError) << "asked for by number";

    QTcpServer probe;
    ASSERT_TRUE(probe.listen(QHostAddress::LocalHost));
    const quint16 free = probe.serverPort();
    probe.close();
    host::SampleService third;
    third.preferPort(free);
    third.start();
    EXPECT_EQ(third.httpPort(), free);
}

TEST_F(SampleService, PacesPackagesOnly)
{
    service->with([](host::SampleService& running) {
        running.site().addTitle(
            {u"TEST00001"_s, u"Paced"_s, host::SumOf::WholeFile, false, {{u"01.01"_s, {}, 400'000}}});
        running.setRate(2'000'000);
    });
    QElapsedTimer clock;
    clock.start();
    const Exchange seen = get(
        *service, "/tppkg/np/TEST00001/TEST00001_T1/UP0001-TEST00001_00-VARNHOLDSAMPLE00-A0101-V0100.pkg");
    EXPECT_EQ(seen.body.size(), 400'000);
    EXPECT_GE(clock.elapsed(), 190);
    service->with([](host::SampleService& running) { running.setRate(0); });
}

TEST_F(SampleService, OutlivesBadRequests)
{
    const struct
    {
        QByteArray sent;
        int status;
    } cases[] = {
        {"\r\n\r\n", 400},
        {"GET\r\n\r\n", 400},
        {"GET /\r\n\r\n", 400},
        {"GET nowhere HTTP/1.0\r\n\r\n", 400},
        {"GET http://elsewhere/ HTTP/1.1\r\n\r\n", 400},
        {QByteArray("GET /\0x HTTP/1.0\r\n\r\n", 21), 400},
        {QByteArray("\0\0\0\0\r\n\r\n", 8), 400},
        {QByteArray(100'000, 'x'), 400},
        {"POST / HTTP/1.0\r\n\r\n", 405},
        {"GET /../../etc/passwd HTTP/1.0\r\n\r\n", 404},
        {"GET /odd/ HTTP/1.0\r\n\r\n", 404},
        {"GET /odd/huge-document:99999999999999999999/x HTTP/1.0\r\n\r\n", 404},
        {"GET /odd/pieces:0/ HTTP/1.0\r\n\r\n", 404},
        {"GET /odd/redirect-port HTTP/1.0\r\n\r\n", 302},
        {"GET /odd/many-packages:5/ HTTP/1.0\r\n\r\n", 200},
        {"GET /%00\xff\xfe HTTP/1.0\r\n\r\n", 404},
        {"HEAD /Varnhold/txt/version.txt HTTP/1.0\r\n\r\n", 200},
    };
    for (const auto& row : cases)
        EXPECT_EQ(send(*service, row.sent).status(), row.status) << row.sent.left(60).constData();
    {
        QTcpSocket leaving;
        leaving.connectToHost(u"127.0.0.1"_s, service->httpPort());
        leaving.write("GET /odd/endless-headers/ HTTP/1.0\r\n\r\n");
        ASSERT_TRUE(leaving.waitForReadyRead(patience));
        leaving.abort();
    }
    {
        // Encryption has a buffer of its own, which must not take in what never ends.
        QSslSocket leaving;
        leaving.setPeerVerifyMode(QSslSocket::VerifyNone);
        leaving.connectToHostEncrypted(u"127.0.0.1"_s, service->httpsAuthority().section(u':', 1).toUShort());
        ASSERT_TRUE(leaving.waitForEncrypted(patience));
        leaving.write("GET /odd/endless-headers/ HTTP/1.0\r\n\r\n");
        ASSERT_TRUE(leaving.waitForReadyRead(patience));
        leaving.abort();
    }
    EXPECT_EQ(get(*service, "/Varnhold/txt/version.txt").status(), 200);
}

TEST_F(SampleService, ShowsGoodAndBadCertificates)
{
    const QList<QSslCertificate> authority = QSslCertificate::fromPath(service->caFile());
    ASSERT_EQ(authority.size(), 1);
    const struct
    {
        QStringView word;
        QSslError::SslError error;
    } cases[] = {
        {u"wrong-host", QSslError::HostNameMismatch},
        {u"expired", QSslError::CertificateExpired},
        {u"self-signed", QSslError::SelfSignedCertificate},
        {u"good", QSslError::NoError},
    };
    for (const auto& row : cases) {
        service->with([&](host::SampleService& running) {
            running.setCertificateFault(host::parseCertificateFault(row.word).value());
        });
        for (const QString& host : {u"127.0.0.1"_s, u"localhost"_s}) {
            QSslSocket socket;
            QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
            configuration.setCaCertificates(authority);
            socket.setSslConfiguration(configuration);
            socket.setPeerVerifyMode(QSslSocket::QueryPeer);
            socket.connectToHostEncrypted(host, service->httpsAuthority().section(u':', 1).toUShort());
            ASSERT_TRUE(socket.waitForEncrypted(patience)) << socket.errorString().toStdString();
            const QList<QSslError> errors = socket.sslHandshakeErrors();
            EXPECT_EQ(errors.isEmpty() ? QSslError::NoError : errors.first().error(), row.error)
                << row.word.toString().toStdString();
            EXPECT_EQ(exchange(socket, "GET /tpl/np/BCUS10001/BCUS10001-ver.xml HTTP/1.0\r\n\r\n").status(),
                      200);
        }
    }
}

} // namespace
} // namespace varnhold::test
