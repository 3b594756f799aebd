#include "SkinWorld.h"

#include "appearance/SkinChoices.h"
#include "appearance/SkinIni.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/Contrast.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/SystemColorsUi.h"
#include "support/FakeColorDialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QScrollBar>
#include <QTreeWidget>

namespace varnhold::test {

namespace {

/// The skin page at work, on a skin that has been applied.
struct SkinChoicesTest : SkinWorld
{
    SkinChoicesTest()
    {
        windows.setIconRedraw([this] { ++redraws; });
        pages.skin.bind(choices);
        skin.ApplySkin();
        player.played.clear();
        redraws = 0;
    }

    [[nodiscard]] QString kept(const QString& key, const QString& section = u"Settings"_s) const
    {
        return file.Skin_Read(section, key, u"(missing)"_s);
    }
    [[nodiscard]] QString label(const char* name) { return child<QLabel>(settingsWindow, name).text(); }
    void click(const char* name) { child<ButtonEx>(settingsWindow, name).click(); }
    [[nodiscard]] QString number(int row) { return rows.topLevelItem(row)->text(1); }
    void clickRow(int row) { Q_EMIT rows.itemClicked(rows.topLevelItem(row), 0); }
    QString writePicture(const QString& name, const QColor& color) const
    {
        QPixmap picture(8, 8);
        picture.fill(color);
        picture.save(root.path(name));
        return root.path(name);
    }

    FakeColorDialog colors;
    int redraws = 0;
    SkinChoices choices{{page, state, file, dialogs, colors, boxes, sounds, skin, windows}};
    MorphListBox& games = main.games();
    QWidget& updates = child(main, "ListView1");
    QTreeWidget& rows = child<QTreeWidget>(settingsWindow, "ListView2");
};

} // namespace

TEST_F(SkinChoicesTest, EachBarReachesItsListItsLabelsAndTheSkin)
{
    const struct
    {
        const char* bar;
        const char* number;
        const char* name;
        QWidget& list;
        const char* property;
        QString key;
        QStringList names;
    } bars[] = {
        {"vscl_LBxTheme", "lblLBxTheme", "lbl_LBxTheme", games, "Theme", u"LBx Theme"_s,
         u"None Cyan Gunmetal Blue Red Pinky Green Purple Golden Copper Custom"_s.split(u' ')},
        {"vscl_LBxAlign", "lblLBxAlign", "lbl_LBxAlignment", games, "PictureMode", u"LBxMode"_s,
         u"Normal Stretched Tiled"_s.split(u' ')},
        {"vscl_Align", "lblAlign", "lbl_PictureAlignment", updates, "PictureAlignment", u"PictureAlignment"_s,
         u"Top Left,Top Right,Bottom Left,Bottom Right,Center,Tile"_s.split(u',')},
    };
    for (const auto& given : bars) {
        auto& bar = child<QScrollBar>(settingsWindow, given.bar);
        EXPECT_EQ(bar.maximum(), given.names.size() - 1);
        EXPECT_EQ(label(given.number).toInt(), bar.value()) << "as the skin has it";
        for (const int value : {0, 1, bar.maximum()}) {
            bar.setValue(value);
            EXPECT_EQ(label(given.number), QString::number(value));
            EXPECT_EQ(label(given.name), given.names[value]);
            EXPECT_EQ(kept(given.key), QString::number(value));
            if (value < 10) {
                EXPECT_EQ(given.list.property(given.property).toInt(), value) << given.bar;
            }
        }
    }
}

TEST_F(SkinChoicesTest, AThemeKeepsThePictureAndTheCustomOneBringsTheRowsBack)
{
    ASSERT_EQ(page.vscl_LBxTheme, 10);
    const ColorValue custom = games.BackColor1();
    auto& bar = child<QScrollBar>(settingsWindow, "vscl_LBxTheme");
    bar.setValue(3);
    EXPECT_EQ(games.BackColor1(), 0xC00000U);
    EXPECT_EQ(games.ForeColor(), 0U);
    EXPECT_FALSE(games.Picture().isNull());
    EXPECT_EQ(redraws, 1);
    bar.setValue(10);
    EXPECT_EQ(games.BackColor1(), custom);
    EXPECT_FALSE(games.Picture().isNull());

    // A picture that is gone neither stops a theme nor asks at each step.
    QFile::remove(inSkin(u"list.bmp"_s));
    bar.setValue(4);
    EXPECT_EQ(games.Theme(), 4);
    EXPECT_EQ(kept(u"LBx Theme"_s), u"4"_s);
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(SkinChoicesTest, EachPictureButtonFillsTheBoxBesideIt)
{
    const QString wine = writePicture(u"wine.bmp"_s, Qt::darkRed);
    const struct
    {
        const char* button;
        const char* text;
        const char* box;
        QWidget& list;
        QString prefix;
    } cases[] = {
        {"btnLvPicture", "txt_LBxPicture", "chk_LBxPicture", games, u"LBx"_s},
        {"btnLBxPicture", "txt_LvPicture", "chk_LvPicture", updates, u"Lv"_s},
    };
    for (const auto& given : cases) {
        SCOPED_TRACE(given.button);
        const auto picture = [&] { return given.list.property("Picture").value<QPixmap>(); };
        auto& box = child<QCheckBox>(settingsWindow, given.box);
        ASSERT_TRUE(box.isChecked());
        const QString before = child<QLineEdit>(settingsWindow, given.text).text();

        // What is no picture gets a sentence, and nothing changes.
        dialogs.answer(root.write(u"no.bmp"_s, "words"));
        boxes.expect(u"This picture cannot be shown: Invalid picture"_s);
        click(given.button);
        EXPECT_EQ(kept(given.prefix + u"Picture Path"_s), u"(missing)"_s);
        EXPECT_EQ(child<QLineEdit>(settingsWindow, given.text).text(), before);

        dialogs.answer(wine);
        click(given.button);
        EXPECT_EQ(dialogs.asked.back().startFolder, state.SkinPath);
        EXPECT_EQ(child<QLineEdit>(settingsWindow, given.text).text(), u"wine.bmp"_s);
        EXPECT_EQ(child(settingsWindow, given.text).toolTip(), wine);
        EXPECT_EQ(kept(given.prefix + u"Picture Path"_s), wine);
        EXPECT_EQ(kept(given.prefix + u"Picture Name"_s), u"wine.bmp"_s);
        EXPECT_EQ(picture().toImage().pixelColor(0, 0), QColor(Qt::darkRed));
        box.setChecked(false);
        EXPECT_TRUE(picture().isNull());
        EXPECT_EQ(kept(given.prefix + u"Picture"_s), u"0"_s);

        QFile::rename(wine, root.path(u"away.bmp"_s));
        boxes.expect(u"This picture cannot be shown: File not found"_s);
        box.setChecked(true);
        EXPECT_FALSE(box.isChecked()) << "nothing changed";
        EXPECT_EQ(kept(given.prefix + u"Picture"_s), u"0"_s);
        QFile::rename(root.path(u"away.bmp"_s), wine);
        box.setChecked(true);
        EXPECT_EQ(picture().size(), QSize(8, 8));
        EXPECT_EQ(kept(given.prefix + u"Picture"_s), u"1"_s);
    }
}

TEST_F(SkinChoicesTest, ColorsTheProgramAnew)
{
    const struct
    {
        const char* button;
        QString title;
        const char* number;
        QString key;
    } cases[] = {
        {"cmd_Color(0)", u"ForeColor"_s, "lbl_ForeColor", u"Skin ForeColor"_s},
        {"cmd_Color(1)", u"HighlightColor"_s, "lbl_HighLightColor", u"Skin HightlightColor"_s},
        {"cmd_Color(2)", u"BackColor"_s, "lbl_BackColor", u"Skin BackColor"_s},
    };
    page.customColors[0] = 1; // an edit that was not saved goes with each of them
    for (int i = 0; i < 3; ++i) {
        const auto& given = cases[i];
        const QString before = kept(given.key);
        colors.answers.add(std::nullopt);
        click(given.button);
        EXPECT_EQ(kept(given.key), before) << "cancelled";
        EXPECT_EQ(page.customColors[0], i == 0 ? 1U : SkinIni(file).customColor(u"ArrowDownColor"_s));
        const auto chosen = static_cast<ColorValue>(0x102030 * (i + 1));
        colors.answers.add(chosen);
        click(given.button);
        EXPECT_EQ(colors.asked.back().title, given.title);
        EXPECT_EQ(colors.asked.back().first, before.toUInt());
        EXPECT_EQ(label(given.number), QString::number(chosen));
        EXPECT_EQ(kept(given.key), QString::number(chosen));
    }
    const auto& fetch = child<ButtonEx>(main, "btnFetch");
    EXPECT_EQ(fetch.ForeColor(), 0x102030U);
    EXPECT_EQ(fetch.HighlightColor(), 0x204060U);
    EXPECT_EQ(fetch.BackColor(), 0x306090U);
}

TEST_F(SkinChoicesTest, KeepsTheCustomColorsInTheSkin)
{
    ASSERT_EQ(rows.topLevelItemCount(), 17);
    EXPECT_TRUE(rows.topLevelItem(2)->font(1).bold());
    EXPECT_EQ(rows.topLevelItem(2)->data(0, Qt::AccessibleTextRole), u"BackColor1, "_s + number(2));
    const auto selected = rows.topLevelItem(2)->background(1).color();
    EXPECT_EQ(toColorValue(selected), blackOrWhiteOn(number(2).toUInt())) << "the number can be read";

    colors.answers.add(std::nullopt);
    const QString before = number(2);
    clickRow(2);
    EXPECT_EQ(player.played, QStringList{u"0"_s});
    EXPECT_EQ(colors.asked.back().title, u"BackColor1"_s);
    EXPECT_EQ(colors.asked.back().first, before.toUInt());
    EXPECT_EQ(label("lblLbColor(0)"), u"BackColor1"_s);
    EXPECT_EQ(number(2), before);
    rows.setCurrentItem(rows.topLevelItem(2));
    QTest::keyClick(&rows, Qt::Key_Down);
    EXPECT_EQ(label("lblLbColor(0)"), u"BackColor2"_s);
    EXPECT_EQ(colors.asked.size(), 1U) << "no dialog by key";

    const ColorValue shown = games.BackColor1();
    colors.answers.add(0x0000FF);
    clickRow(2);
    EXPECT_EQ(number(2), u"255"_s);
    EXPECT_EQ(games.BackColor1(), shown) << "not yet";
    page.customColors[4] = 0x8000000F;
    click("btnLstSkin(0)");
    EXPECT_EQ(games.BackColor1(), 0xFFU);
    for (int i = 0; i < 17; ++i)
        EXPECT_EQ(kept(customListColors()[i], u"Custom LstView"_s), number(i));
    EXPECT_EQ(kept(u"ButtonColor1"_s, u"Custom LstView"_s), u"-2147483633"_s);
    ASSERT_TRUE(skin.ApplySkin()) << "a system colour can be read again";
    colors.answers.add(std::nullopt);
    clickRow(4);
    EXPECT_EQ(colors.asked.back().first, GetLngColor(0x8000000F));

    click("btnLstSkin(1)");
    EXPECT_EQ(kept(u"BackColor1"_s, u"Custom LstView"_s), u"(missing)"_s);
    EXPECT_EQ(games.BackColor1(), 0xFFU) << "until the next run";
    ASSERT_TRUE(skin.ApplySkin());
    EXPECT_EQ(number(2), u"255"_s) << "an absent key is the list's own colour";
}

TEST_F(SkinChoicesTest, AChoiceThatCannotBeKeptHoldsForThisRun)
{
    QFile::remove(inSkin(u"Skin.ini"_s));
    root.makeFolder(u"skin/default/Skin.ini"_s);
    child<QScrollBar>(settingsWindow, "vscl_LBxTheme").setValue(5);
    click("btnLstSkin(0)");
    click("btnLstSkin(1)");
    EXPECT_EQ(games.Theme(), 5);
    EXPECT_EQ(label("lbl_LBxTheme"), u"Pinky"_s);
    EXPECT_TRUE(boxes.shown.isEmpty());
    QDir(root.path(u"skin"_s)).removeRecursively();
    child<QScrollBar>(settingsWindow, "vscl_LBxTheme").setValue(6);
    EXPECT_EQ(games.Theme(), 6) << "with the skin's folder gone, too";
}

} // namespace varnhold::test
