#include "state/SettingsLoad.h"

#include "support/ErrorNumber.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QStringList>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

const QString updateUrl = u"http://updates.example:6969/Varnhold/ps3gameids.txt"_s;

class RecordingHost : public SettingsLoadHost
{
public:
    void showStatus(const QString& text) override { events.append(u"status "_s + text); }
    void showMessage(const QString& text) override { events.append(u"message "_s + text); }
    void startCertificateWatch() override { events.append(u"watch"_s); }
    void setBarMainTop(double twips) override { events.append(u"main bar "_s + QString::number(twips)); }
    void setBarLeftTop(double twips) override { events.append(u"left bar "_s + QString::number(twips)); }
    void applyOpacity(OpacityOf window, int value) override
    {
        events.append(u"opacity %1 %2"_s.arg(static_cast<int>(window)).arg(value));
    }

    void loadCoverServers() override { events.append(u"cover servers"_s); }

    QStringList events;
};

class SettingsLoadTest : public testing::Test, public test::SettingsWorld
{
protected:
    SettingsLoadTest()
    {
        QObject::connect(&settings, &Settings::changed, &settings, [this] { ++changes; });
    }

    /// The number of the error that ended the load.
    int load(const QByteArray& keys)
    {
        if (!keys.isNull())
            root.write(u"Settings.ini"_s, "[Settings]\r\n" + keys);
        return test::errorNumberOf(
            [this] { loadSettings(settings, file, state, root.paths(), updateUrl, host); });
    }

    RecordingHost host;
    int changes = 0;
};

TEST_F(SettingsLoadTest, NothingThere)
{
    ASSERT_EQ(load({}), errors::none);
    const QList<Check> off = {Check::Edge,     Check::OWrite, Check::Previous, Check::AutoSSL0,
                              Check::AutoSSL1, Check::UseDLD, Check::CGNFolder};
    for (int i = 0; i < static_cast<int>(Check::Count); ++i)
        EXPECT_EQ(settings.isChecked(static_cast<Check>(i)), !off.contains(static_cast<Check>(i))) << i;
    EXPECT_EQ(settings.server(), 1);
    EXPECT_EQ(settings.downloadMaxText(), u"2"_s);
    EXPECT_EQ(settings.orderText(Order::AscDesc), u"Ascending"_s);
    EXPECT_EQ(settings.orderTag(Order::AscDesc), u"Asc"_s);
    EXPECT_EQ(settings.orderText(Order::SearchTable), u"GameName"_s);
    EXPECT_EQ(settings.orderText(Order::DBTable), u"PS3Games"_s);
    EXPECT_EQ(settings.listUrl(), (TaggedText{u"ps3gameids.txt"_s, updateUrl}));
    EXPECT_EQ(settings.idList(), (TaggedText{u"\u00A7elect Database >>>"_s, {}}));
    EXPECT_EQ(settings.saveDir(), TaggedText());
    EXPECT_EQ(settings.sound(0), TaggedText());
    EXPECT_TRUE(settings.unwantedStrings().startsWith(u"000,:, Game Data, game gata,"_s));
    EXPECT_TRUE(
        settings.unwantedStrings().endsWith(u"\u2122, (v01.01), (v01.02), (v01.03), (v01.04), "
                                            "(v01.05), (v01.06), (v01.07), (v01.08), (v01.09), (v01.10)"_s));
    EXPECT_FALSE(settings.certOption(0) || settings.certOption(1));
    EXPECT_EQ(host.events, (QStringList{u"status Applying: Settings"_s, u"main bar 3285"_s,
                                        u"left bar 3285"_s, u"opacity 0 220"_s, u"opacity 1 220"_s,
                                        u"opacity 3 220"_s, u"opacity 4 220"_s, u"cover servers"_s}));
    EXPECT_EQ(settings.opacity(OpacityOf::Download), 220);
    EXPECT_FALSE(QFileInfo::exists(root.paths().settingsIni())) << "the load alone writes nothing";
    EXPECT_EQ(changes, 0);
}

TEST_F(SettingsLoadTest, EverythingSet)
{
    const QByteArray keys =
        "DB Table=2\r\nasc desc=2\r\nSearch Table=1\r\nDB Links=0\r\nListText6=0\r\n"
        "Cover Name=c\r\nCover Path=/c\r\nGameID Name=n\r\nGameID Url=u\r\nDL Max=5\r\n"
        "Server=6\r\nEdge Detection=1\r\nExit=0\r\nFade Out=2\r\nUnwanted Strings=a, b\r\n"
        "Auto SSL 1=1\r\nOpt0 Cert=False\r\nOpt1 Cert=True\r\nUse DLDir=1\r\n"
        "SaveDir Name=d\r\nSaveDir Path=/d\r\nClick Sounds=0\r\nMenu Sound Path=/gone.wav\r\n"
        "DL Opacity=10\r\nDB Opacity=255\r\nmainbar top=100\r\nLEFTBAR TOP=200.5\r\n";
    ASSERT_EQ(load(keys), errors::none);
    EXPECT_EQ(settings.orderText(Order::DBTable), u"PS3Personal"_s);
    EXPECT_EQ(settings.orderText(Order::AscDesc), u"Descending"_s);
    EXPECT_EQ(settings.orderTag(Order::AscDesc), u"Desc"_s);
    EXPECT_EQ(settings.orderText(Order::SearchTable), u"GameID"_s);
    EXPECT_FALSE(settings.isChecked(Check::DBLinks));
    EXPECT_FALSE(settings.isChecked(Check::ListText6));
    EXPECT_TRUE(settings.isChecked(Check::ListText5));
    EXPECT_EQ(settings.covers(), (TaggedText{u"c"_s, u"/c"_s}));
    EXPECT_EQ(settings.listUrl(), (TaggedText{u"n"_s, u"u"_s}));
    EXPECT_EQ(settings.downloadMax(), 5);
    EXPECT_EQ(settings.server(), 6);
    EXPECT_TRUE(settings.isChecked(Check::Edge));
    EXPECT_FALSE(settings.isChecked(Check::Exit));
    EXPECT_FALSE(settings.isChecked(Check::Fade)) << "a grayed box is not checked";
    EXPECT_EQ(settings.unwantedStrings(), u"a, b"_s);
    EXPECT_TRUE(!settings.certOption(0) && settings.certOption(1));
    EXPECT_TRUE(settings.isChecked(Check::UseDLD));
    EXPECT_EQ(settings.saveDir(), (TaggedText{u"d"_s, u"/d"_s}));
    EXPECT_FALSE(settings.isChecked(Check::SoundsClick));
    EXPECT_EQ(settings.sound(1), (TaggedText{{}, u"/gone.wav"_s})) << "taken untested";
    EXPECT_EQ(settings.opacity(OpacityOf::Download), 10)
        << "the number is kept though windows do not take it";
    EXPECT_EQ(host.events, (QStringList{u"status Applying: Settings"_s, u"watch"_s, u"main bar 100"_s,
                                        u"left bar 200.5"_s, u"opacity 0 220"_s, u"opacity 1 220"_s,
                                        u"opacity 3 220"_s, u"opacity 4 255"_s, u"cover servers"_s}));
    EXPECT_EQ(root.read(u"Settings.ini"_s), "[Settings]\r\n" + keys);
    EXPECT_EQ(changes, 0);
}

TEST_F(SettingsLoadTest, AValueThatDoesNotFitEndsTheLoad)
{
    const struct
    {
        QByteArray key;
        int error;
    } cases[] = {
        {"DB Table=x", errors::typeMismatch},
        {"Show Icons=3", errors::invalidPropertyValue},
        {"Show Icons=-1", errors::invalidPropertyValue},
        {"ListText3=True", errors::typeMismatch},
        {"Server=7", errors::invalidPropertyValue},
        {"Server=0", errors::invalidPropertyValue},
        {"Server=32768", errors::overflow},
        {"DL Max=9", errors::invalidPropertyValue},
        {"DL Max=two", errors::typeMismatch},
        {"Opt0 Cert=yes", errors::typeMismatch},
        {"DL Opacity=256", errors::invalidPropertyValue},
        {"DL Opacity=-1", errors::invalidPropertyValue},
        {"MainBar Top=high", errors::typeMismatch},
    };
    for (const auto& c : cases) {
        host.events.clear();
        EXPECT_EQ(load(c.key + "\r\n"), c.error) << c.key.constData();
        EXPECT_EQ(host.events, QStringList{u"status Applying: Settings"_s}) << c.key.constData();
    }
}

TEST_F(SettingsLoadTest, OrdersOutOfRangeAndLongTextsAreNoErrors)
{
    EXPECT_EQ(load("DB Table=3\r\nAsc Desc=0\r\nSearch Table=-7\r\nCover Name=" + QByteArray(300, 'c') +
                   "\r\nUnwanted Strings=" + QByteArray(1600, 'x')),
              errors::none);
    EXPECT_EQ(settings.orderText(Order::DBTable), u"PS3Personal"_s) << "as designed";
    EXPECT_EQ(settings.orderText(Order::AscDesc), u"Ascending"_s);
    EXPECT_EQ(settings.orderText(Order::SearchTable), u"GameID"_s);
    EXPECT_EQ(settings.covers().text.size(), 254);
    EXPECT_EQ(settings.unwantedStrings().size(), 1499);
}

TEST_F(SettingsLoadTest, KeysBeforeTheErrorAreInForce)
{
    EXPECT_EQ(load("Use DLDir=1\r\nDL Max=3\r\nServer=7\r\nCover Name=c\r\nExit=1\r\n"),
              errors::invalidPropertyValue);
    EXPECT_EQ(settings.covers().text, u"c"_s);
    EXPECT_EQ(settings.downloadMax(), 3);
    EXPECT_EQ(settings.server(), 1);
    EXPECT_FALSE(settings.isChecked(Check::Exit));
    EXPECT_FALSE(settings.isChecked(Check::UseDLD));
}

TEST_F(SettingsLoadTest, OptionButtons)
{
    const struct
    {
        QByteArray keys;
        bool first;
        bool second;
    } cases[] = {
        {"Opt0 Cert=1", true, false},
        {"Opt0 Cert=TRUE\r\nOpt1 Cert=0", true, false},
        {"Opt0 Cert=True\r\nOpt1 Cert=True", false, true}, // one clears the other
        {"Opt0 Cert=false\r\nOpt1 Cert=False", false, false},
    };
    for (const auto& c : cases) {
        settings.unwrittenValues() = {};
        ASSERT_EQ(load(c.keys), errors::none);
        EXPECT_EQ(settings.certOption(0), c.first) << c.keys.constData();
        EXPECT_EQ(settings.certOption(1), c.second) << c.keys.constData();
    }
}

TEST_F(SettingsLoadTest, SoundsThatLieInTheirFolder)
{
    root.write(u"wav/click.wav"_s, "x");
    root.write(u"wav/shutdown.wav"_s, "x");
    ASSERT_EQ(load("Close Sound File=own.mp3\r\n"), errors::none);
    EXPECT_EQ(settings.sound(0), (TaggedText{u"click.wav"_s, root.path(u"wav/click.wav"_s)}));
    EXPECT_EQ(settings.sound(1), TaggedText());
    EXPECT_EQ(settings.sound(3), (TaggedText{u"own.mp3"_s, root.path(u"wav/shutdown.wav"_s)}))
        << "name and path are looked for each on its own";
}

TEST_F(SettingsLoadTest, TheDefaultDatabaseIsTakenOver)
{
    const QString database = root.write(u"GameDB.mdb"_s, QByteArray(1536, 'x'));
    ASSERT_EQ(load("x=1\r\n"), errors::none);
    EXPECT_EQ(host.events.value(1), u"message Found Default Database\r\nGameDB.mdb"_s);
    EXPECT_EQ(settings.idList(), (TaggedText{u"GameDB.mdb"_s, database}));
    EXPECT_EQ(settings.databaseSize(), u"Before: 1.50 KB"_s);
    EXPECT_EQ(state.DBPath, database);
    EXPECT_EQ(state.DBFile, u"GameDB"_s);
    EXPECT_EQ(root.read(u"Settings.ini"_s),
              "[Settings]\r\nx=1\r\nIDList Path=" + database.toUtf8() + "\r\nIDList File=GameDB.mdb\r\n");
}

TEST_F(SettingsLoadTest, ANamedDatabase)
{
    root.write(u"GameDB.mdb"_s, "default");
    const QString own = root.write(u"own.games.mdb"_s, "x");
    ASSERT_EQ(load("IDList Path=" + own.toUtf8() + "\r\nIDList File=My Games\r\n"), errors::none);
    EXPECT_EQ(settings.idList(), (TaggedText{u"My Games"_s, own}));
    EXPECT_EQ(settings.databaseSize(), u"Before: 1 Bytes"_s);
    EXPECT_EQ(state.DBFile, u"My Games"_s);

    ASSERT_EQ(load("IDList Path=" + own.toUtf8()), errors::none);
    EXPECT_EQ(settings.idList(), (TaggedText{u"own.games"_s, own}));

    settings.unwrittenValues() = {};
    state = {};
    ASSERT_EQ(load("IDList Path=/gone.mdb\r\n"), errors::none);
    EXPECT_EQ(settings.idList(), (TaggedText{u"\u00A7elect Database >>>"_s, {}}));
    EXPECT_EQ(state.DBPath, QString());
}

TEST_F(SettingsLoadTest, PositionAndLayoutComeFirst)
{
    EXPECT_EQ(readLayout(file, state), 1);
    EXPECT_FALSE(readPosition(file, state).left);
    root.write(u"Settings.ini"_s, "[Settings]\r\nVarnhold X=-12.5\r\nMiximize=2\r\n");
    EXPECT_EQ(readPosition(file, state).left, -12.5);
    EXPECT_FALSE(readPosition(file, state).top);
    EXPECT_EQ(readLayout(file, state), 2);
    root.write(u"Settings.ini"_s, "[Settings]\r\nVarnhold Y=low\r\nMiximize=3\r\n");
    EXPECT_THROW(readPosition(file, state), RunTimeError);
    EXPECT_EQ(readLayout(file, state), 1);
}

} // namespace
} // namespace varnhold
