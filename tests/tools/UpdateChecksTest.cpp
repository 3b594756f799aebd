#include "tools/IdListCheck.h"
#include "tools/VersionCheck.h"

#include "state/Hosts.h"
#include "support/FakeFetch.h"
#include "support/FakeMessageBoxes.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"

#include <gtest/gtest.h>

#include <QFile>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(VersionCheckTest, ReadsTheLastLineAndComparesItAsText)
{
    struct Case
    {
        QByteArray file;
        const char* version;
        bool newer; ///< than 1.0.0
    };
    const Case cases[] = {
        {"1.0.0", "1.0.0", false},       {"1.0.1\r\n", "1.0.1", true},
        {" 1. 0.1 \n", "1.0.1", true},   {"9.9.9\n1.0.0\n", "1.0.0", false},
        {"1.0.0\r2.0.0", "2.0.0", true}, {"2.0.0\n\n", "", false},
        {"1.0.0\t", "1.0.0\t", true},    {"0.10.0", "0.10.0", false},
        {"10.0.0", "10.0.0", true},      {"", "", false},
        {"<html>", "<html>", true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(versionIn(c.file), QLatin1StringView(c.version)) << c.file.constData();
        EXPECT_EQ(isNewerVersion(versionIn(c.file)), c.newer) << c.file.constData();
    }
    // 1.10.0 against 1.9.0: text, so the shorter number in front wins.
    EXPECT_LT(u"1.10.0"_s, u"1.9.0"_s);
}

namespace {

class UpdateChecksTest : public testing::Test, public SettingsWorld
{
protected:
    UpdateChecksTest()
    {
        hosts.update.authority = u"updates.test"_s;
        settings.setListUrl({u"ps3gameids.txt"_s, listUrl});
    }

    const QString versionUrl = u"http://updates.test:6969/Varnhold/txt/version.txt"_s;
    const QString listUrl = u"http://updates.test:6969/Varnhold/ps3gameids.txt"_s;
    Hosts hosts;
    FakeFetch fetch;
    FakeMessageBoxes boxes;

    VersionNews check() { return Version_Check(fetch, hosts, root.paths(), boxes, u"Title"_s); }
};

} // namespace

TEST_F(UpdateChecksTest, TellsNewsOfTheProgram)
{
    using Outcome = VersionNews::Outcome;
    fetch.answers[versionUrl] = {.body = "1.2.3\n"};
    VersionNews news = check();
    EXPECT_EQ(news.outcome, Outcome::Newer);
    EXPECT_EQ(news.caption, u"Update Available - 1.2.3"_s);
    EXPECT_EQ(root.read(u"version.txt"_s), "1.2.3\n");

    // A host that fails leaves the file of an earlier time, which counts.
    fetch.answers.remove(versionUrl);
    boxes.expect(u"No File Exist!"_s, u"Title"_s);
    news = check();
    EXPECT_EQ(news.outcome, Outcome::Newer);
    EXPECT_FALSE(news.reached);
    EXPECT_EQ(boxes.shown.constLast().icon, BoxIcon::Exclamation);
    fetch.answers[versionUrl] = {.body = "1.0.0"};
    EXPECT_EQ(check().outcome, Outcome::None);

    QFile::remove(root.path(u"version.txt"_s));
    root.makeFolder(u"version.txt"_s);
    boxes.expect(u"No File Exist!"_s);
    EXPECT_EQ(check().outcome, Outcome::Unread);

    hosts.update.authority.clear();
    EXPECT_EQ(check().outcome, Outcome::NotAsked);
}

TEST_F(UpdateChecksTest, ComparesTheSizesOfTheIdList)
{
    struct Case
    {
        const char* name;
        int existing; ///< bytes; -1: no file
        qint64 told;  ///< -1: no length
        int status;
        const char* sizes; ///< of both, as they are shown
        bool available;
    };
    const Case cases[] = {
        {"no file", -1, 2048, 200, "0,0,2048,2 KB", true},
        {"empty file", 0, 2048, 200, "0,0 B,2048,2 KB", true},
        {"larger", 100, 101, 200, "100,100 B,101,101 B", true},
        {"same", 100, 100, 200, "100,100 B,100,100 B", false},
        {"smaller", 100, 5, 200, "100,100 B,5,5 B", false},
        {"empty there, none here", -1, 0, 200, "0,0,0,0 B", false},
        {"no length", 100, -1, 200, "100,100 B,-1,-1 B", false},
        {"too long", 100, 2147483648, 200, "100,100 B,-1,-1 B", false},
        {"redirect", 100, 500, 302, "100,100 B,-1,-1 B", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        QFile::remove(root.path(u"ps3gameids.txt"_s));
        if (c.existing >= 0)
            root.write(u"ps3gameids.txt"_s, QByteArray(c.existing, 'x'));
        fetch.answers[listUrl] = {{}, {.status = c.status, .toldLength = c.told}};
        const IdListSizes sizes = checkIdList(fetch, settings, root.paths());
        const QStringList shown = QString::fromLatin1(c.sizes).split(u',');
        const QString text =
            u"Existing:\tBytes:\t%1\r\n\tFile Size:\t%2\r\nUpdate:\tBytes:\t%3\r\n\tFile Size:\t%4\r\nAvailable:\t"_s
                .arg(shown.at(0), shown.at(1), shown.at(2), shown.at(3));
        const QString word = c.available ? u"Yes"_s : u"NO"_s;
        EXPECT_EQ(sizes.settingsText(), text + word);
        EXPECT_EQ(sizes.boxText(), text + u'\t' + word + u"\r\n"_s);
        EXPECT_EQ(sizes.isAvailable(), c.available);
    }
}

TEST_F(UpdateChecksTest, FetchesTheIdListAndKeepsTheOldOneOnFailure)
{
    fetch.answers[listUrl] = {.body = "BLUS30443 - Name\r\n"};
    EXPECT_TRUE(downloadIdList(fetch, settings, root.paths(), boxes, u"Title"_s));
    EXPECT_EQ(root.read(u"ps3gameids.txt"_s), "BLUS30443 - Name\r\n");
    fetch.answers.remove(listUrl);
    boxes.expect(u"No File Exist!"_s);
    EXPECT_TRUE(downloadIdList(fetch, settings, root.paths(), boxes, u"Title"_s));
    EXPECT_EQ(root.read(u"ps3gameids.txt"_s), "BLUS30443 - Name\r\n");
    settings.setListUrl({});
    EXPECT_FALSE(downloadIdList(fetch, settings, root.paths(), boxes, u"Title"_s));
}

} // namespace varnhold::test
