#include "state/Hosts.h"

#include "platform/RunTimeError.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

TEST(Hosts, ReadsAllOfThem)
{
    const test::TempRoot root;
    root.write(u"hosts.ini"_s, "[Hosts]\nUse=these\n[servers]\n1=one.example\n1 CA=ca/one.pem\n1 Old TLS=1\n"
                               "2=two.example:8080\n6=[::1]:443\n6 CA=/etc/six.pem\n6 Old TLS=0\n"
                               "[Update]\nHost=update.example\nOld TLS=True\n[ImageSearch]\nHost=10.0.0.1\n"
                               "[Forum]\nHost=forum.example\n");
    const Hosts hosts = readHosts(root.paths().hostsIni());
    EXPECT_FALSE(hosts.sample);
    EXPECT_EQ(hosts.servers[0].authority, u"one.example"_s);
    EXPECT_EQ(hosts.servers[0].certificateFile, root.path(u"ca/one.pem"_s));
    EXPECT_TRUE(hosts.servers[0].allowsOldTls);
    EXPECT_EQ(hosts.servers[1].authority, u"two.example:8080"_s);
    EXPECT_FALSE(hosts.servers[1].allowsOldTls);
    EXPECT_EQ(hosts.servers[2].authority, QString());
    EXPECT_EQ(hosts.servers[5].authority, u"[::1]:443"_s);
    EXPECT_EQ(hosts.servers[5].certificateFile, u"/etc/six.pem"_s);
    EXPECT_EQ(hosts.update.authority, u"update.example:6969"_s);
    EXPECT_TRUE(hosts.update.allowsOldTls);
    EXPECT_EQ(hosts.imageSearch.authority, u"10.0.0.1"_s);
    EXPECT_EQ(hosts.forum.authority, u"forum.example"_s);

    root.write(u"hosts.ini"_s, "[Update]\nHost=update.example:80\n");
    EXPECT_EQ(readHosts(root.paths().hostsIni()).update.authority, u"update.example:80"_s);
}

TEST(Hosts, SaysSample)
{
    const test::TempRoot root;
    EXPECT_TRUE(readHosts(root.paths().hostsIni()).sample) << "no file";
    root.write(u"hosts.ini"_s, "[Hosts]\r\nuse=Sample\r\n[Servers]\r\n1=not/read\r\n");
    const Hosts hosts = readHosts(root.paths().hostsIni());
    EXPECT_TRUE(hosts.sample);
    EXPECT_EQ(hosts.servers[0].authority, QString());
}

TEST(Hosts, RefusesWhatItCannotUnderstand)
{
    const test::TempRoot root;
    const struct
    {
        QByteArray text;
        QString place; ///< that the sentence names
    } cases[] = {
        {"[Hosts]\nUse=smaple", u"[Hosts] Use"_s},
        {"[Servers]\n3=http://three.example", u"[Servers] 3"_s},
        {"[Servers]\n3=three.example/path", u"[Servers] 3"_s},
        {"[Servers]\n3=three example", u"[Servers] 3"_s},
        {"[Servers]\n3=user@three.example", u"[Servers] 3"_s},
        {"[Servers]\n3=:80", u"[Servers] 3"_s},
        {"[Servers]\n3=three.example:99999", u"[Servers] 3"_s},
        {"[Servers]\n3=three.example:0", u"[Servers] 3"_s},
        {"[Servers]\n3=three.example:x", u"[Servers] 3"_s},
        {"[Servers]\n3=three.example?q", u"[Servers] 3"_s},
        {"[Update]\nHost=a\nOld TLS=maybe", u"[Update] Old TLS"_s},
    };
    for (const auto& c : cases) {
        root.write(u"hosts.ini"_s, c.text);
        try {
            readHosts(root.paths().hostsIni());
            ADD_FAILURE() << c.text.constData();
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), errors::invalidCall);
            EXPECT_TRUE(error.description().startsWith(u"hosts.ini: "_s + c.place))
                << qPrintable(error.description());
        }
    }
    root.makeFolder(u"folder"_s);
    EXPECT_THROW(readHosts(root.path(u"folder"_s)), RunTimeError);
    root.makePipe(u"pipe"_s);
    EXPECT_THROW(readHosts(root.path(u"pipe"_s)), RunTimeError);
}

} // namespace
} // namespace varnhold
