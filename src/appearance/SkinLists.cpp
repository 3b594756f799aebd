#include "appearance/SkinLists.h"

#include "appearance/SkinColors.h"
#include "appearance/SkinIni.h"
#include "appearance/SkinPictures.h"
#include "appearance/ToolkitLook.h"
#include "controls/Contrast.h"
#include "controls/MorphListBox/MorphListBox.h"

#include <QVariant>
#include <QWidget>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int customTheme = 10;
constexpr int grayed = 2; // a box takes it, and is not checked
constexpr int mostModes = 2;
constexpr int mostAlignments = 5;
constexpr int defaultTheme = 2;
constexpr int tiled = 5;
constexpr double visible = 3;

void assign(QWidget* control, const char* name, const QVariant& value)
{
    if (control != nullptr)
        assignProperty(*control, name, value);
}

/// Name, path and check box of a list's picture. `usual`: the skin's own file for it.
void readPicture(SkinPage::ListPicture& held, const SkinIni& ini, const QString& prefix, const QString& usual,
                 const SkinFolder& folder)
{
    const bool hasUsual = folder.has(usual);
    const QString name = ini.text(prefix + u"Picture Name"_s);
    if (!name.isEmpty())
        held.file.text = name;
    else if (hasUsual)
        held.file.text = usual;
    // The path replaces the name just set in the box's text; this is meant.
    const QString path = ini.text(prefix + u"Picture Path"_s);
    if (!path.isEmpty())
        held.file = {path, path};
    else if (hasUsual)
        held.file = {folder.path() + u'/' + usual, folder.path() + u'/' + usual};
}

} // namespace

SkinLists::SkinLists(SkinPage& page, SkinIni& ini, QWidget* games, QWidget* updates)
    : m_page(page), m_ini(ini), m_games(games), m_updates(updates)
{
}

void SkinLists::readGameList(SkinPictures& pictures)
{
    readPicture(m_page.gameList, m_ini, u"LBx"_s, u"list.bmp"_s, pictures.folder());
    const int mode = m_ini.number(u"LBxMode"_s, mostModes).value_or(0);
    if (mode != m_page.vscl_LBxAlign) {
        m_page.vscl_LBxAlign = mode;
        assign(m_games, "PictureMode", mode);
        m_ini.write(u"LBxMode"_s, QString::number(mode));
    }
    if (const std::optional<int> check = m_ini.number(u"LBxPicture"_s, grayed)) {
        m_page.gameList.checked = *check == 1;
        if (m_page.gameList.checked)
            showGamePicture(pictures);
        else
            assign(m_games, "Picture", QPixmap());
    }
    const int theme = m_ini.number(u"LBx Theme"_s, customTheme).value_or(defaultTheme);
    if (theme != m_page.vscl_LBxTheme)
        changeTheme(theme, pictures);
}

void SkinLists::showGamePicture(SkinPictures& pictures)
{
    const QString& path = m_page.gameList.file.tag;
    assign(m_games, "Picture", path.isEmpty() ? QPixmap() : pictures.loadPath(path));
}

void SkinLists::changeTheme(int theme, SkinPictures& pictures)
{
    m_page.vscl_LBxTheme = theme;
    if (theme < customTheme)
        assign(m_games, "Theme", theme);
    else
        applyCustomColors();
    dressScrollBars();
    // A theme takes the picture away.
    if (m_page.gameList.checked)
        showGamePicture(pictures);
    else
        assign(m_games, "Picture", QPixmap());
    m_ini.write(u"LBxPicture"_s, m_page.gameList.checked ? u"1"_s : u"0"_s);
    m_ini.write(u"LBx Theme"_s, QString::number(theme));
}

void SkinLists::readUpdateList(SkinPictures& pictures)
{
    readPicture(m_page.updateList, m_ini, u"Lv"_s, u"back.bmp"_s, pictures.folder());
    if (const std::optional<int> check = m_ini.number(u"LvPicture"_s, grayed)) {
        m_page.updateList.checked = *check == 1;
        const QString& path = m_page.updateList.file.tag;
        assign(m_updates, "Picture",
               m_page.updateList.checked && !path.isEmpty() ? pictures.loadPath(path) : QPixmap());
    }
    const int alignment = m_ini.number(u"PictureAlignment"_s, mostAlignments).value_or(tiled);
    if (alignment != m_page.vscl_Align) {
        m_page.vscl_Align = alignment;
        assign(m_updates, "PictureAlignment", alignment);
        m_ini.write(u"PictureAlignment"_s, QString::number(alignment));
    }
}

void SkinLists::dressScrollBars()
{
    if (const auto* const games = qobject_cast<MorphListBox*>(m_games))
        varnhold::dressScrollBars(games->design());
}

void SkinLists::applyCustomColors()
{
    dressScrollBars();
    if (m_page.vscl_LBxTheme != customTheme || m_games == nullptr)
        return;
    assign(m_games, "RedrawFlag", false);
    for (const QString& name : customListColors()) {
        if (const std::optional<ColorValue> color = m_ini.customColor(name))
            assign(m_games, qPrintable(name), *color);
    }
    // The dots round a row have no key of their own.
    const auto own = [this](const char* name) { return m_games->property(name).toUInt(); };
    const ColorValue inks[] = {m_page.Shape_Color[SkinPage::Highlight], own("HighlightColor"),
                               own("ForeColor")};
    const ColorValue grounds[] = {own("SelColor1"), own("SelColor2"), own("BackColor1"), own("BackColor2")};
    assign(m_games, "FocusRectColor", firstThatStandsOut(inks, grounds, visible));
    assign(m_games, "RedrawFlag", true);
    dressScrollBars();
}

void SkinLists::applyForeColor()
{
    if (m_page.vscl_LBxTheme != 0)
        return;
    assign(m_games, "ForeColor", m_page.Shape_Color[SkinPage::Fore]);
    assign(m_games, "RedrawFlag", true);
}

} // namespace varnhold
