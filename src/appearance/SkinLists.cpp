#include "appearance/SkinLists.h"

#include "appearance/Skin.h"
#include "appearance/SkinColors.h"
#include "appearance/SkinIni.h"
#include "appearance/SkinPictures.h"
#include "appearance/ToolkitLook.h"
#include "appearance/WindowControls.h"
#include "controls/Contrast.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "state/ErrorReport.h"

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
constexpr double readable = 4.5;

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

QPixmap pictureOf(const SkinPage::ListPicture& held, SkinPictures& pictures)
{
    return held.file.tag.isEmpty() ? QPixmap() : pictures.loadPath(held.file.tag);
}

/// A locked list stays on screen for minutes: it wears the colours that it has, toned down. A theme brings
/// its own instead.
void lockInOwnColors(QWidget& list)
{
    const auto own = [&list](const char* name) { return list.property(name).toUInt(); };
    const auto tone = [&](const char* name, ColorValue ink, std::span<const ColorValue> grounds,
                          double ratio) {
        constexpr double share = 0.45;
        assign(&list, name, tonedDown(ink, grounds, share, ratio));
    };
    const ColorValue backs[] = {own("BackColor1"), own("BackColor2")};
    // What is chosen stays told from the rest, by less.
    constexpr double none = 1;
    tone("DisSelColor1", own("SelColor1"), backs, none);
    tone("DisSelColor2", own("SelColor2"), backs, none);
    const ColorValue chosen[] = {own("DisSelColor1"), own("DisSelColor2")};
    tone("DisForeColor", own("ForeColor"), backs, readable);
    tone("DisHighlightColor", own("HighlightColor"), chosen, readable);
    tone("DisFocusRectColor", own("FocusRectColor"), chosen, none);
    assign(&list, "DisBackColor1", backs[0]);
    assign(&list, "DisBackColor2", backs[1]);
    constexpr std::pair<const char*, const char*> rest[] = {{"DisBorderColor1", "BorderColor1"},
                                                            {"DisBorderColor2", "BorderColor2"},
                                                            {"DisButtonColor1", "ButtonColor1"},
                                                            {"DisButtonColor2", "ButtonColor2"},
                                                            {"DisArrowDownColor", "ArrowDownColor"},
                                                            {"DisArrowUpColor", "ArrowUpColor"},
                                                            {"DisThumbColor1", "ThumbColor1"},
                                                            {"DisThumbColor2", "ThumbColor2"},
                                                            {"DisThumbBorderColor", "ThumbBorderColor"},
                                                            {"DisTrackbarColor1", "TrackBarColor1"},
                                                            {"DisTrackbarColor2", "TrackBarColor2"},
                                                            {"DisCheckboxColor", "CheckBoxColor"},
                                                            {"DisCheckboxArrowColor", "CheckboxArrowColor"}};
    for (const auto& [locked, name] : rest)
        tone(locked, own(name), backs, none);
}

QWidget* listOf(SkinHost& host, const char* name)
{
    const QWidget* const window = host.window("frmMain");
    return window == nullptr ? nullptr : controlOf(*window, name);
}

} // namespace

SkinLists::SkinLists(SkinPage& page, SkinIni& ini, SkinHost& host)
    : m_page(page),
      m_ini(ini),
      m_host(host),
      m_games(listOf(host, "MorphListBox1")),
      m_updates(listOf(host, "ListView1"))
{
}

void SkinLists::readGameList(SkinPictures& pictures)
{
    readPicture(m_page.gameList, m_ini, u"LBx"_s, u"list.bmp"_s, pictures.folder());
    const int mode = m_ini.number(u"LBxMode"_s, mostModes).value_or(0);
    if (mode != m_page.vscl_LBxAlign)
        changePictureMode(mode);
    if (const std::optional<int> check = m_ini.number(u"LBxPicture"_s, grayed)) {
        m_page.gameList.checked = *check == 1;
        assign(m_games, "Picture",
               m_page.gameList.checked ? pictureOf(m_page.gameList, pictures) : QPixmap());
    }
    const int theme = m_ini.number(u"LBx Theme"_s, customTheme).value_or(defaultTheme);
    if (theme == m_page.vscl_LBxTheme)
        return;
    // The custom colours wait for this skin's rows.
    m_page.vscl_LBxTheme = theme;
    if (theme < customTheme)
        setTheme(theme);
    m_host.redrawIcons();
    showGamePicture(m_page.gameList.checked, pictures);
    m_ini.write(u"LBx Theme"_s, QString::number(theme));
}

void SkinLists::readUpdateList(SkinPictures& pictures)
{
    readPicture(m_page.updateList, m_ini, u"Lv"_s, u"back.bmp"_s, pictures.folder());
    if (const std::optional<int> check = m_ini.number(u"LvPicture"_s, grayed)) {
        m_page.updateList.checked = *check == 1;
        assign(m_updates, "Picture",
               m_page.updateList.checked ? pictureOf(m_page.updateList, pictures) : QPixmap());
    }
    const int alignment = m_ini.number(u"PictureAlignment"_s, mostAlignments).value_or(tiled);
    if (alignment != m_page.vscl_Align)
        changePictureAlignment(alignment);
}

void SkinLists::fillColorRows()
{
    if (m_games == nullptr)
        return;
    if (m_page.vscl_LBxTheme == 0) { // which has no colour of its own
        assign(m_games, "ForeColor", m_page.Shape_Color[SkinPage::Fore]);
        assign(m_games, "RedrawFlag", true);
    }
    m_page.customColors.clear();
    for (const QString& name : customListColors()) {
        const std::optional<ColorValue> stored = m_ini.customColor(name);
        m_page.customColors.push_back(stored ? *stored : m_games->property(qPrintable(name)).toUInt());
    }
    dressScrollBars();
    if (m_page.vscl_LBxTheme == customTheme)
        applyCustomColors();
}

void SkinLists::setTheme(int theme)
{
    assign(m_games, "Theme", theme);
    dressScrollBars();
}

void SkinLists::changeTheme(int theme, SkinPictures& pictures)
{
    m_page.vscl_LBxTheme = theme;
    if (theme < customTheme)
        setTheme(theme);
    else
        applyCustomColors();
    m_host.redrawIcons();
    silently([&] { showGamePicture(m_page.gameList.checked, pictures); });
    m_ini.write(u"LBx Theme"_s, QString::number(theme));
}

void SkinLists::changePictureMode(int mode)
{
    m_page.vscl_LBxAlign = mode;
    assign(m_games, "PictureMode", mode);
    m_ini.write(u"LBxMode"_s, QString::number(mode));
}

void SkinLists::changePictureAlignment(int alignment)
{
    m_page.vscl_Align = alignment;
    assign(m_updates, "PictureAlignment", alignment);
    m_ini.write(u"PictureAlignment"_s, QString::number(alignment));
}

void SkinLists::showGamePicture(bool checked, SkinPictures& pictures)
{
    const QPixmap picture = checked ? pictureOf(m_page.gameList, pictures) : QPixmap();
    m_page.gameList.checked = checked;
    assign(m_games, "Picture", picture);
    m_ini.write(u"LBxPicture"_s, checked ? u"1"_s : u"0"_s);
}

void SkinLists::showUpdatePicture(bool checked, SkinPictures& pictures)
{
    const QPixmap picture = checked ? pictureOf(m_page.updateList, pictures) : QPixmap();
    m_page.updateList.checked = checked;
    assign(m_updates, "Picture", picture);
    m_ini.write(u"LvPicture"_s, checked ? u"1"_s : u"0"_s);
}

void SkinLists::takeGamePicture(const TaggedText& file, SkinPictures& pictures)
{
    const QPixmap picture = pictures.loadPath(file.tag); // also unchecked: it would stop each later start
    m_page.gameList.file = file;
    m_ini.write(u"LBxPicture Path"_s, file.tag);
    m_ini.write(u"LBxPicture Name"_s, file.text);
    if (m_page.gameList.checked)
        assign(m_games, "Picture", picture);
}

void SkinLists::takeUpdatePicture(const TaggedText& file, SkinPictures& pictures)
{
    const QPixmap picture = pictures.loadPath(file.tag);
    m_page.updateList.file = file;
    m_ini.write(u"LvPicture Path"_s, file.tag);
    m_ini.write(u"LvPicture Name"_s, file.text);
    if (m_page.updateList.checked)
        assign(m_updates, "Picture", picture);
}

void SkinLists::dressScrollBars()
{
    if (const auto* const games = qobject_cast<MorphListBox*>(m_games))
        varnhold::dressScrollBars(games->design());
}

void SkinLists::applyCustomColors()
{
    if (m_games == nullptr || m_page.customColors.empty())
        return;
    assign(m_games, "RedrawFlag", false);
    for (qsizetype i = 0; i < customListColors().size(); ++i)
        assign(m_games, qPrintable(customListColors()[i]),
               m_page.customColors.at(static_cast<std::size_t>(i)));
    // The dots round a row have no key of their own.
    const auto own = [this](const char* name) { return m_games->property(name).toUInt(); };
    const ColorValue inks[] = {m_page.Shape_Color[SkinPage::Highlight], own("HighlightColor"),
                               own("ForeColor")};
    const ColorValue grounds[] = {own("SelColor1"), own("SelColor2"), own("BackColor1"), own("BackColor2")};
    assign(m_games, "FocusRectColor", firstThatStandsOut(inks, grounds, visible));
    lockInOwnColors(*m_games);
    assign(m_games, "RedrawFlag", true);
    dressScrollBars();
}

void SkinLists::writeCustomColors()
{
    for (std::size_t i = 0; i < m_page.customColors.size(); ++i)
        m_ini.writeCustomColor(customListColors()[static_cast<qsizetype>(i)], m_page.customColors[i]);
}

} // namespace varnhold
