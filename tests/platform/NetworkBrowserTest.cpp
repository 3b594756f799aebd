#include "platform/NetworkBrowser.h"

#include "support/PrintText.h"
#include "support/RunningService.h"
#include "support/ScriptedAlert.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace varnhold::test {

using namespace Qt::StringLiterals;
using host::CertificateFault;

namespace {

constexpr auto document = "<?xml version='1.0'?><a id='X'><b/></a>";
const QString shown = u"  <?xml version=\"1.0\"?>\r\n<a id=\"X\">\r\n  <b />\r\n</a>\r\n"_s;
const QString notXml = u"The XML page cannot be displayed"_s;

class NetworkBrowserTest : public testing::Test
{
protected:
    NetworkBrowserTest()
    {
        service.with([](host::SampleService& running) {
            running.site().addPage(u"/doc.xml"_s, "text/xml", document);
            running.site().addPage(u"/empty"_s, "text/xml", "");
        });
        make();
    }

    void make(const HttpWalkLimits& limits = {})
    {
        browser = std::make_unique<NetworkBrowser>(
            alert, [this](const QString& authority) { return tls(authority); }, nullptr, limits);
        QObject::connect(browser.get(), &BrowserControl::statusTextChanged, browser.get(),
                         [this](const QString& text) { statuses.append(text); });
        QObject::connect(browser.get(), &BrowserControl::navigateError, browser.get(),
                         [this](int code) { errors.append(code); });
        QObject::connect(browser.get(), &BrowserControl::progressChanged, browser.get(),
                         [this](int progress, int) { lastProgress = progress; });
    }

    HostTls tls(const QString& authority) const
    {
        return {authority == service.httpsAuthority() && trustsService ? service.caFile() : QString(), false};
    }

    /// Runs events until the page is over.
    void wait()
    {
        const QDeadlineTimer deadline(20000);
        while (browser->busy() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        EXPECT_FALSE(browser->busy()) << "the page never ended";
    }

    void load(const QString& url)
    {
        statuses.clear();
        errors.clear();
        browser->navigate(url);
        EXPECT_TRUE(browser->busy());
        EXPECT_TRUE(statuses.isEmpty() && errors.isEmpty()) << "an event inside navigate()";
        wait();
    }

    void expectPage(const QString& text)
    {
        EXPECT_EQ(browser->bodyText(), text);
        EXPECT_EQ(statuses.value(statuses.size() - 1), u"Done"_s);
        EXPECT_EQ(statuses.count(u"Done"_s), 1);
        EXPECT_TRUE(errors.isEmpty());
        EXPECT_EQ(lastProgress, -1);
    }

    void expectError(int code)
    {
        EXPECT_EQ(errors, QList<int>{code});
        EXPECT_FALSE(statuses.contains(u"Done"_s));
        EXPECT_FALSE(browser->bodyText().has_value());
        EXPECT_EQ(lastProgress, 0);
    }

    [[nodiscard]] QString secureUrl() const
    {
        return u"https://"_s + service.httpsAuthority() + u"/doc.xml"_s;
    }

    RunningService service;
    ScriptedAlert alert;
    bool trustsService = true;
    std::unique_ptr<NetworkBrowser> browser;
    QStringList statuses;
    QList<int> errors;
    int lastProgress = -2;
};

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

} // namespace

TEST_F(NetworkBrowserTest, ShowsAPageAndSaysSo)
{
    const QString url = service.url(u"/doc.xml"_s);
    load(url);
    expectPage(shown);
    EXPECT_EQ(statuses, (QStringList{u"Connecting to "_s + service.httpAuthority() + u"..."_s,
                                     u"Downloading "_s + url + u"..."_s, u"Done"_s}));
}

TEST_F(NetworkBrowserTest, ShowsWhatIsNoDocumentInItsOwnWay)
{
    load(u"about:blank"_s);
    expectPage(u""_s);
    load(service.url(u"/empty"_s));
    expectPage(notXml);
    service.misbehave(u"/doc.xml"_s, u"not-xml"_s);
    load(service.url(u"/doc.xml"_s));
    expectPage(notXml);
    // Another failure than 404 shows the page that comes with it.
    service.misbehave(u"/doc.xml"_s, u"status:500"_s);
    load(service.url(u"/doc.xml"_s));
    expectPage(browser->bodyText().value_or(QString()));
}

TEST_F(NetworkBrowserTest, TellsEveryFailureByItsCode)
{
    make({std::chrono::milliseconds(300), qint64{64} * 1024 * 1024, 20});
    const struct
    {
        QString word;
        int code;
    } answers[] = {
        {u"404"_s, 404},
        {u"early-close"_s, -2146697208},
        {u"reset:0"_s, -2146697208},
        {u"wrong-length"_s, -2146697208},
        {u"huge-document"_s, -2146697208},
        {u"endless-headers"_s, -2146697208},
        {u"stall"_s, -2146697205},
        {u"endless-redirect"_s, -2146697196},
        {u"redirect-self"_s, -2146697196},
        {u"redirect-empty"_s, -2146697196},
    };
    for (const auto& answer : answers) {
        SCOPED_TRACE(answer.word.toStdString());
        service.misbehave(u"/doc.xml"_s, answer.word);
        load(service.url(u"/doc.xml"_s));
        expectError(answer.code);
    }

    QTcpServer noTls;
    noTls.listen(QHostAddress::LocalHost);
    QObject::connect(&noTls, &QTcpServer::newConnection, &noTls,
                     [&] { noTls.nextPendingConnection()->write("HTTP/1.0 400 Bad Request\r\n\r\n"); });
    const struct
    {
        QString url;
        int code;
    } addresses[] = {
        {u"http://127.0.0.1:"_s + QString::number(freePort()) + u"/"_s, -2146697212},
        {u"http://no-such-host.invalid/"_s, -2146697211},
        {u""_s, -2146697214},
        {u"http:///path"_s, -2146697214},
        {u"http://[broken"_s, -2146697214},
        {u"/doc.xml"_s, -2146697214},
        {u"ftp://127.0.0.1/doc.xml"_s, -2146697203},
        {u"https://127.0.0.1:"_s + QString::number(noTls.serverPort()) + u"/"_s, -2146697202},
    };
    for (const auto& address : addresses) {
        SCOPED_TRACE(address.url.toStdString());
        load(address.url);
        expectError(address.code);
    }
    EXPECT_TRUE(alert.hosts.isEmpty());
}

TEST_F(NetworkBrowserTest, TakesOddButSoundAnswers)
{
    for (const QString& word : {u"pieces:1"_s, u"split-header"_s, u"no-length"_s, u"redirect-port"_s}) {
        SCOPED_TRACE(word.toStdString());
        service.misbehave(u"/doc.xml"_s, word);
        load(service.url(u"/doc.xml"_s));
        expectPage(shown);
    }
    service.misbehave(u"/doc.xml"_s, u"huge-document:60"_s);
    load(service.url(u"/doc.xml"_s));
    EXPECT_GT(browser->bodyText().value_or(QString()).size(), 60 * 1024 * 1024);
}

TEST_F(NetworkBrowserTest, SendsAnApostropheAsItStands)
{
    load(service.url(u"/tppkg/np/'X/X-ver.xml"_s));
    EXPECT_EQ(service.requests(), QList<QByteArray>{"/tppkg/np/'X/X-ver.xml"});
}

TEST_F(NetworkBrowserTest, LeavesTheOldPageWithoutAWord)
{
    service.misbehave(u"/slow.xml"_s, u"stall"_s);
    browser->navigate(service.url(u"/slow.xml"_s));
    QTimer::singleShot(50, browser.get(), [this] { browser->navigate(service.url(u"/doc.xml"_s)); });
    wait();
    expectPage(shown);

    // Left inside its own last event.
    statuses.clear();
    bool left = false;
    QObject::connect(browser.get(), &BrowserControl::progressChanged, browser.get(), [&](int progress, int) {
        if (progress == -1 && !std::exchange(left, true))
            browser->navigate(u"about:blank"_s);
    });
    browser->navigate(service.url(u"/doc.xml"_s));
    wait();
    expectPage(u""_s);
}

TEST_F(NetworkBrowserTest, TrustsTheAuthorityOfTheHostsOwnPolicy)
{
    load(secureUrl());
    expectPage(shown);
    EXPECT_TRUE(alert.hosts.isEmpty());
}

TEST_F(NetworkBrowserTest, AsksOnceForACertificateAHostAndItsErrors)
{
    trustsService = false;
    load(secureUrl());
    expectError(-2146697202);
    EXPECT_EQ(alert.hosts, QStringList{service.httpsAuthority()});
    EXPECT_FALSE(alert.problems.value(0).isEmpty());
    EXPECT_TRUE(service.requests().isEmpty()) << "something was fetched without a Yes";

    alert.yes = 1;
    load(secureUrl());
    expectPage(shown);
    load(secureUrl());
    expectPage(shown);
    EXPECT_EQ(alert.hosts.size(), 2);

    // Another certificate of the same host is another question.
    for (const CertificateFault fault :
         {CertificateFault::WrongHost, CertificateFault::Expired, CertificateFault::SelfSigned}) {
        service.with([&](host::SampleService& running) { running.setCertificateFault(fault); });
        make();
        alert.hosts.clear();
        load(secureUrl());
        expectError(-2146697202);
        EXPECT_EQ(alert.hosts.size(), 1);
    }
}

TEST_F(NetworkBrowserTest, ANewPageEndsAnOpenQuestion)
{
    trustsService = false;
    // The new lookup waits on top of the question, as a routine does that pumps.
    alert.whileOpen = [this] {
        browser->navigate(service.url(u"/doc.xml"_s));
        EXPECT_EQ(alert.cancelled, 1);
        wait();
        expectPage(shown);
    };
    alert.yes = 1; // too late to count
    browser->navigate(secureUrl());
    wait();
    expectPage(shown);
    EXPECT_EQ(alert.hosts.size(), 1);
}

TEST_F(NetworkBrowserTest, CanGoWhileAQuestionIsOpen)
{
    trustsService = false;
    bool gone = false;
    alert.whileOpen = [&] {
        browser.reset();
        gone = true;
    };
    browser->navigate(secureUrl());
    const QDeadlineTimer deadline(20000);
    while (!gone && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    EXPECT_TRUE(gone);
    EXPECT_TRUE(errors.isEmpty());
}

} // namespace varnhold::test
