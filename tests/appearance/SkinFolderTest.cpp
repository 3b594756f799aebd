#include "appearance/SkinFolder.h"
#include "appearance/SkinCatalogue.h"
#include "appearance/SkinIni.h"
#include "state/ApplicationState.h"
#include "state/SettingsFile.h"
#include "support/ErrorNumber.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QDir>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(SkinFolder, FindsNamesWithoutRegardToCase)
{
    const TempRoot root;
    root.write(u"skin/Mixed/BUTTON--1.BMP"_s, "1");
    root.write(u"skin/Mixed/Menu/Db.bmp"_s, "2");
    const SkinFolder folder(root.path(u"skin/Mixed"_s));
    EXPECT_EQ(folder.read(u"Button--1.bmp"_s), "1");
    EXPECT_EQ(folder.find(u"button--1.bmp"_s), root.path(u"skin/Mixed/BUTTON--1.BMP"_s));
    EXPECT_EQ(folder.read(u"menu/db.bmp"_s), "2");
    EXPECT_FALSE(folder.has(u"list.bmp"_s));
}

TEST(SkinFolder, SaysWhatIsMissing)
{
    const TempRoot root;
    root.write(u"skin/a/Button1.bmp"_s, "1");
    root.makeFolder(u"skin/a/Button2.bmp"_s);
    root.makePipe(u"skin/a/Button4.bmp"_s);
    const SkinFolder folder(root.path(u"skin/a"_s));
    EXPECT_EQ(errorNumberOf([&] { return folder.read(u"Button4.bmp"_s); }), errors::pathFileAccess);
    EXPECT_EQ(errorNumberOf([&] { return folder.read(u"Button3.bmp"_s); }), errors::fileNotFound);
    EXPECT_EQ(errorNumberOf([&] { return folder.read(u"menu/db.bmp"_s); }), errors::pathNotFound);
    EXPECT_EQ(errorNumberOf([&] { return folder.read(u"Button2.bmp"_s); }), errors::pathFileAccess);
    EXPECT_EQ(errorNumberOf([&] { return SkinFolder(root.path(u"skin/b"_s)).read(u"Button1.bmp"_s); }),
              errors::pathNotFound);

    QFile::remove(root.path(u"skin/a/Button1.bmp"_s));
    EXPECT_EQ(errorNumberOf([&] { return folder.read(u"Button1.bmp"_s); }), errors::fileNotFound);
    QDir(root.path(u"skin/a"_s)).removeRecursively();
    EXPECT_EQ(errorNumberOf([&] { return folder.read(u"Button1.bmp"_s); }), errors::pathNotFound)
        << "the folder went after it was listed";
}

TEST(SkinCatalogue, ListsTheRootOnceUntilItIsCleared)
{
    const TempRoot root;
    SkinCatalogue catalogue(root.path(u"skin"_s));
    EXPECT_TRUE(catalogue.build());
    EXPECT_TRUE(catalogue.entries().empty()) << "no root";
    for (const char* const name : {"skin/zinc", "skin/Beech", "skin/ä b.1", "skin/ash"})
        root.makeFolder(QString::fromUtf8(name));
    root.write(u"skin/readme.txt"_s, "no skin");
    EXPECT_TRUE(catalogue.build());
    ASSERT_EQ(catalogue.entries().size(), 4U);
    EXPECT_EQ(catalogue.entries()[0].caption, u"ash"_s);
    EXPECT_EQ(catalogue.entries()[1].tag, root.path(u"skin/Beech"_s));
    root.makeFolder(u"skin/new"_s);
    EXPECT_FALSE(catalogue.build());
    EXPECT_EQ(catalogue.entries().size(), 4U);
    catalogue.clear();
    EXPECT_TRUE(catalogue.build());
    EXPECT_EQ(catalogue.entries().size(), 5U);
    EXPECT_EQ(skinNameOf(u"/skins/my.skin"_s), u"my"_s);
    EXPECT_EQ(skinNameOf(u"/skins/plain/"_s), u"plain"_s);
}

TEST(SkinIni, TakesWhatItsControlTakes)
{
    const TempRoot root;
    ApplicationState state;
    state.SkinPath = root.path(u"skin"_s);
    SettingsFile file(root.paths(), state);
    const SkinIni ini(file);
    EXPECT_EQ(ini.color(u"Skin ForeColor"_s), std::nullopt) << "no Skin.ini at all";

    const struct
    {
        const char* value;
        std::optional<ColorValue> color;
        int error;
    } cases[] = {
        {"", std::nullopt, 0},
        {"0", 0U, 0},
        {"16724787", 0xFF3333U, 0},
        {"16777215", 0xFFFFFFU, 0},
        {"-2147483633", 0x8000000FU, 0},
        {"16777216", {}, errors::invalidPropertyValue},
        {"-1", {}, errors::invalidPropertyValue},
        {"3000000000", {}, errors::overflow},
        {"red", {}, errors::typeMismatch},
    };
    for (const auto& each : cases) {
        root.write(u"skin/Skin.ini"_s, QByteArray("[Settings]\r\nSkin ForeColor=") + each.value);
        std::optional<ColorValue> color;
        EXPECT_EQ(errorNumberOf([&] { color = ini.color(u"Skin ForeColor"_s); }), each.error) << each.value;
        EXPECT_EQ(color, each.color) << each.value;
    }
    root.write(u"skin/Skin.ini"_s, "[Settings]\r\nLBxMode=2\r\nLBx Theme=11\r\nLvPicture=yes\r\n");
    EXPECT_EQ(ini.number(u"LBxMode"_s, 2), 2);
    EXPECT_EQ(errorNumberOf([&] { return ini.number(u"LBx Theme"_s, 10); }), errors::invalidPropertyValue);
    EXPECT_EQ(errorNumberOf([&] { return ini.number(u"LvPicture"_s, 1); }), errors::typeMismatch);
}

} // namespace varnhold::test
