#include "state/Settings.h"

#include "support/ErrorNumber.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLocale>

#include <functional>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

struct SettingsTest : testing::Test, test::SettingsWorld
{
};

TEST_F(SettingsTest, EachChangeWritesItsKeysAtOnce)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); // files do not follow it
    const TaggedText pair{u"n"_s, u"/t"_s};
    const struct
    {
        std::function<void(Settings&)> change;
        QByteArray lines;
        bool told = true; ///< raises changed()
    } cases[] = {
        {[](Settings& s) { s.setServer(4); }, "Server=4\r\n"},
        {[](Settings& s) { s.setChecked(Check::Exit, true); }, "Exit=1\r\n"},
        {[](Settings& s) { s.setChecked(Check::ListText6, true); }, "ListText6=1\r\n"},
        {[](Settings& s) {
             s.unwrittenValues().unwantedStrings = u" a,\r\nb "_s;
             s.setChecked(Check::RemoveUnw, true);
         },
         "Remove Unwanted=1\r\nUnwanted Strings=a,b\r\n"},
        {[](Settings& s) { s.setUnwantedStrings(u"  a, b  "_s); }, "Unwanted Strings=a, b\r\n"},
        // The file's value ends where it would end on reading.
        {[](Settings& s) { s.setUnwantedStrings(u"a,\r\nb\r\n[Position]"_s); }, "Unwanted Strings=a,\r\n"},
        {[](Settings& s) { s.setUnwantedStrings(QString(1600, u'x')); },
         "Unwanted Strings=" + QByteArray(1600, 'x') + "\r\n"},
        {[](Settings& s) { s.chooseCertOption(1); }, "Opt0 Cert=False\r\nOpt1 Cert=True\r\n"},
        {[](Settings& s) { s.chooseAutoSsl(0); }, "Auto SSL 0=1\r\nAuto SSL 1=0\r\n"},
        {[](Settings& s) { s.setOpacity(OpacityOf::Main, 10); }, "Main Opacity=10\r\n"},
        {[](Settings& s) { s.setOrder(Order::AscDesc, 2); }, "Asc Desc=2\r\n"},
        {[](Settings& s) { s.setSaveDir(u"/games/my updates"_s); },
         "SaveDir Name=my updates\r\nSaveDir Path=/games/my updates\r\n"},
        {[&](Settings& s) { s.setSound(2, pair); }, "Open Sound File=n\r\nOpen Sound Path=/t\r\n"},
        {[&](Settings& s) { s.setIdList(pair); }, "IDList File=n\r\nIDList Path=/t\r\n"},
        {[&](Settings& s) { s.setListUrl(pair); }, "GameID Name=n\r\nGameID Url=/t\r\n"},
        {[&](Settings& s) { s.setCovers(pair); }, "Cover Name=n\r\nCover Path=/t\r\n"},
        {[](Settings& s) { s.writePosition(-15, 1234567.5); }, "Varnhold X=-15\r\nVarnhold Y=1234567.5\r\n",
         false},
        {[](Settings& s) { s.writeBarMain(3285); }, "Mainbar Top=3285\r\n", false},
        {[](Settings& s) { s.writeLayout(2); }, "Miximize=2\r\n", false},
    };
    for (const auto& c : cases) {
        SettingsValues fresh;
        fresh.orders = {1, 2, 2};
        settings.unwrittenValues() = fresh;
        int told = 0;
        const auto connection = QObject::connect(&settings, &Settings::changed, &settings, [&] { ++told; });
        const QByteArray before = "; mine\r\n[Settings]\r\nother=1\r\n";
        root.write(u"Settings.ini"_s, before);
        c.change(settings);
        EXPECT_EQ(root.read(u"Settings.ini"_s), before + c.lines);
        EXPECT_EQ(told > 0, c.told) << c.lines.constData();
        QObject::disconnect(connection);
    }
    QLocale::setDefault(QLocale::system());
}

TEST_F(SettingsTest, AnUnchangedControlWritesNothing)
{
    const QByteArray before = "[Settings]\r\n";
    root.write(u"Settings.ini"_s, before);
    settings.setServer(settings.server());
    settings.setDownloadMax(settings.downloadMax());
    settings.setOpacity(OpacityOf::Main, settings.opacity(OpacityOf::Main));
    settings.setOrder(Order::DBTable, settings.order(Order::DBTable));
    settings.setUnwantedStrings(settings.unwantedStrings());
    EXPECT_EQ(root.read(u"Settings.ini"_s), before);
}

TEST_F(SettingsTest, WhatAControlRefusesIsNeitherHeldNorWritten)
{
    const QByteArray before = "[Settings]\r\n";
    root.write(u"Settings.ini"_s, before);
    const std::function<void()> refused[] = {
        [&] { settings.setServer(0); },
        [&] { settings.setServer(7); },
        [&] { settings.setDownloadMax(6); },
        [&] { settings.setOpacity(OpacityOf::Main, 256); },
        [&] { settings.setOrder(Order::AscDesc, 3); },
    };
    for (const auto& change : refused)
        EXPECT_EQ(test::errorNumberOf(change), errors::invalidPropertyValue);
    EXPECT_EQ(settings.server(), 1);
    EXPECT_EQ(root.read(u"Settings.ini"_s), before);

    // A file that cannot be written loses the line, not the setting.
    ASSERT_TRUE(QFile::remove(root.path(u"Settings.ini"_s)));
    root.makeFolder(u"Settings.ini"_s);
    settings.setServer(3);
    settings.setUnwantedStrings(u"  a  "_s);
    EXPECT_EQ(settings.server(), 3);
    EXPECT_EQ(settings.unwantedStrings(), u"  a  "_s) << "held untrimmed";
}

TEST_F(SettingsTest, TheSkinsFileStandsInItsFolder)
{
    state.SkinPath = root.path(u"skin/dark"_s);
    root.write(u"skin/dark/Skin.ini"_s, "[A]\r\nk=1\r\n[B]\r\n");
    file.Skin_Write(u"B"_s, u"k"_s, u" 2 "_s);
    EXPECT_EQ(root.read(u"skin/dark/Skin.ini"_s), "[A]\r\nk=1\r\n[B]\r\nk= 2 \r\n") << "untrimmed";
    EXPECT_EQ(file.Skin_Read(u"A"_s, u"k"_s, {}), u"1"_s);
    file.Skin_Delete_Section(u"A"_s);
    EXPECT_EQ(file.Skin_Read(u"A"_s, u"k"_s, u"none"_s), u"none"_s);

    state.SkinPath = root.path(u"skin/loud"_s);
    root.write(u"skin/loud/SKIN.INI"_s, "[A]\r\nk=3\r\n");
    EXPECT_EQ(file.Skin_Read(u"A"_s, u"k"_s, {}), u"3"_s);
    file.Skin_Write(u"A"_s, u"k"_s, u"4"_s);
    EXPECT_EQ(root.read(u"skin/loud/SKIN.INI"_s), "[A]\r\nk=4\r\n");
    state.SkinPath = root.path(u"skin/dark"_s);

    settings.writeSkinPath(state.SkinPath);
    settings.writeSkinName(u"dark"_s);
    EXPECT_EQ(root.read(u"Settings.ini"_s),
              "[Skin]\r\nSkin Path=" + state.SkinPath.toUtf8() + "\r\nSkin Name=dark\r\n");
    file.INI_Delete_Section(u"Skin"_s);
    EXPECT_EQ(root.read(u"Settings.ini"_s), "");
}

} // namespace
} // namespace varnhold
