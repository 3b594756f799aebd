#include "appearance/Skin.h"

#include "appearance/ReadableTexts.h"
#include "appearance/SkinColors.h"
#include "appearance/SkinIni.h"
#include "appearance/SkinLists.h"
#include "appearance/SkinPictures.h"
#include "appearance/SkinTexts.h"
#include "appearance/ToolkitLook.h"
#include "appearance/TransForm.h"
#include "appearance/WindowControls.h"
#include "controls/Contrast.h"
#include "controls/DesignValues.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "platform/RunTimeError.h"
#include "state/ApplicationState.h"
#include "state/ErrorReport.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/SettingsKeys.h"
#include "state/SettingsLoad.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QVariant>
#include <QWidget>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* coloredWindows[] = {"frmMain", "frmSettings", "frmSearch", "frmDB"};
constexpr ColorValue yellow = 0x00FFFF;
constexpr ColorValue red = 0x0000FF;

/// The program is ending: the run is left without a word.
struct Ending
{
};

void colorBar(XP_ProgressBar& bar, ColorValue color)
{
    constexpr ColorValue white = 0xFFFFFF;
    bar.setColor(color);
    bar.setScrolling(blackOrWhiteOn(color) == white ? design::barLookOnDark : design::barLookOnLight);
}

SkinColors skinColorsOf(const SkinIni& ini)
{
    SkinColors colors{};
    colors[SkinPage::Fore] = ini.color(u"Skin ForeColor"_s).value_or(0xFFFFFF);
    colors[SkinPage::Back] = ini.color(u"Skin BackColor"_s).value_or(0xFF3333);
    // The key is spelled this way in every skin.
    colors[SkinPage::Highlight] = ini.color(u"Skin HightlightColor"_s).value_or(0x00FF00);
    return colors;
}

void showPicture(QWidget* control, const QPixmap& picture)
{
    if (control != nullptr && !assignProperty(*control, "Picture", picture))
        assignProperty(*control, "pixmap", picture);
}

} // namespace

void applyTarget(const SkinTarget& target, QWidget& control, SkinPictures& pictures)
{
    if (target.family == nullptr) {
        assignProperty(control, target.property, pictures.load(QLatin1StringView(target.file)));
        return;
    }
    constexpr int faces = 2; // the drawing with faces
    assignProperty(control, "Appearance", faces);
    for (std::size_t i = 0; i < faceProperties.size(); ++i) {
        const auto file = static_cast<std::size_t>(target.faces.at(i) - 1);
        assignProperty(control, faceProperties.at(i),
                       pictures.load(QLatin1StringView(target.family->files.at(file))));
    }
}

Skin::Skin(const Services& services) : m_services(services), m_catalogue(services.paths.root + u"/skin"_s) {}

QWidget* Skin::control(const char* window, const char* name) const
{
    QWidget* found = m_services.host.window(window);
    if (found == nullptr || *name == '\0')
        return found;
    return controlOf(*found, name);
}

void Skin::applyTargets(std::span<const SkinTarget> targets, SkinPictures& pictures)
{
    for (const SkinTarget& target : targets) {
        if (QWidget* const found = control(target.window, target.control))
            applyTarget(target, *found, pictures);
    }
}

void Skin::pumpEvents()
{
    if (!m_services.pump.pump())
        throw Ending();
}

void readSkinLocation(const SettingsFile& file, const Paths& paths, ApplicationState& state)
{
    const QString section = settingsKeys::skinSection();
    state.SkinPath = file.INI_Read(section, u"Skin Path"_s, {});
    if (state.SkinPath.isEmpty())
        state.SkinPath = paths.defaultSkin();
    state.SkinName = file.INI_Read(section, u"Skin Name"_s, {});
    if (state.SkinName.isEmpty())
        state.SkinName = skinNameOf(state.SkinPath);
}

void dressSplash(QWidget& splash, SettingsFile& file, const Paths& paths, ApplicationState& state)
{
    readSkinLocation(file, paths, state);
    silently([&] {
        SkinPictures pictures(state.SkinPath);
        const QPixmap picture = pictures.load(u"background-splash.bmp"_s);
        assignProperty(splash, "Picture", picture);
        cutTo(splash, regionLeft(picture.toImage(), splash.size(), cutAwayColor));
        const SkinIni ini(file);
        assignSkinColorsInside(splash, skinColorsOf(ini));
    });
}

bool Skin::ApplySkin()
{
    try {
        apply();
        return true;
    } catch (const RunTimeError& error) {
        // What was applied stays, and shows.
        reshapeWindows();
        makeTextsReadable();
        report(error);
        Q_EMIT m_services.page.changed();
        makeTextsReadable(); // the page has coloured its own
    } catch (const Ending&) {
    }
    return false;
}

void Skin::recolor()
{
    try {
        ApplySkinColors();
    } catch (const RunTimeError& error) {
        report(error);
    }
}

void Skin::apply()
{
    SkinHost& host = m_services.host;
    pumpEvents();
    readSkinLocation(m_services.file, m_services.paths, m_services.state);
    m_acceptedName = m_services.state.SkinName;
    SkinPictures pictures(m_services.state.SkinPath);
    SkinIni ini(m_services.file);

    host.showStatus(u"Loading: Main Skin"_s);
    applyMain(pictures);
    host.showStatus(u"Loading: Settings Skin"_s);
    applyTargets(settingsTargets(), pictures);
    readColors(ini);
    SkinLists lists(m_services.page, ini, host);
    lists.readGameList(pictures);
    lists.readUpdateList(pictures);

    pumpEvents();
    host.showStatus(u"Loading: Search Skin"_s);
    applyTargets(searchTargets(), pictures);
    host.showStatus(u"Loading: DB Skin"_s);
    applyTargets(databaseTargets(), pictures);
    applyBlank(pictures);
    applyTargets(databaseButtonTargets(), pictures);
    host.showStatus(u"Loading: Menu Skins"_s);
    loadGlyphs(pictures);
    m_services.page.skinLoaded = true;
    ApplySkinColors();
    reshapeWindows();
}

void Skin::applyMain(SkinPictures& pictures)
{
    if (readLayout(m_services.file, m_services.state) == 2)
        m_services.host.enlargeMainWindow();
    else
        applyTargets(normalTargets(), pictures);
    applyTargets(mainTargets(), pictures);
}

bool Skin::loadLayout(int layout)
{
    try {
        SkinPictures pictures(m_services.state.SkinPath);
        applyTargets(layout == 2 ? enlargedTargets() : normalTargets(), pictures);
        return true;
    } catch (const RunTimeError& error) {
        m_services.boxes.show({.text = layoutErrorText(error),
                               .title = QCoreApplication::applicationName(),
                               .icon = BoxIcon::Exclamation,
                               .buttons = BoxButtons::Ok});
        return false;
    }
}

void Skin::readColors(const SkinIni& ini)
{
    SkinPage& page = m_services.page;
    page.Shape_Color = skinColorsOf(ini);
    page.borderColor[SkinPage::Back] = page.Shape_Color[SkinPage::Highlight];
    page.borderColor[SkinPage::Fore] = page.Shape_Color[SkinPage::Highlight];
    page.borderColor[SkinPage::Highlight] = page.Shape_Color[SkinPage::Fore];
}

void Skin::applyBlank(SkinPictures& pictures)
{
    const QPixmap blank = pictures.load(u"bImage.bmp"_s);
    showPicture(control("frmMenu", "imgBlank"), blank);
    showPicture(control("frmDB", "PicPreview"), blank);
    showPicture(control("frmMain", "PicPreview"), blank);
}

void Skin::ApplySkinColors()
{
    SkinHost& host = m_services.host;
    SkinPage& page = m_services.page;
    host.showStatus(u"Applying: Skins Colors"_s);
    for (const char* const window : {"frmMain", "frmDB"}) {
        if (auto* notes = qobject_cast<QAbstractScrollArea*>(control(window, "txtGameNotes")))
            notes->viewport()->setAutoFillBackground(false);
    }
    colorToolkit(page.Shape_Color, page.menuGround);
    for (const char* const name : coloredWindows) {
        if (const QWidget* const window = host.window(name))
            assignSkinColorsInside(*window, page.Shape_Color);
    }
    for (const char* const name : {"frmMain", "frmSearch"}) {
        if (const QWidget* const window = host.window(name)) {
            for (XP_ProgressBar* const bar : controlsOf<XP_ProgressBar>(*window))
                colorBar(*bar, page.Shape_Color[SkinPage::Back]);
        }
    }
    page.availableSkinsColor[1] = page.Shape_Color[SkinPage::Highlight];
    host.takeColors(page);
    host.buildCoverServerMenu();

    SkinIni ini(m_services.file);
    SkinLists lists(page, ini, host);
    host.showStatus(u"Loading: Listbox Skins"_s);
    lists.fillColorRows();
    buildCatalogue();
    Q_EMIT page.changed();
}

void Skin::shape(QWidget& window)
{
    m_services.transForm.ShapeMe(cutAwayColor, true, &window);
}

void Skin::reshapeWindows()
{
    // A new picture has a new outline; the colour that is cut away must not stay on the screen.
    for (const char* const name : coloredWindows) {
        if (QWidget* const window = m_services.host.window(name))
            shape(*window);
    }
}

void Skin::Load_DL(QWidget& window)
{
    dress(window, downloadTargets(), m_services.state.SkinPath);
    for (XP_ProgressBar* const bar : controlsOf<XP_ProgressBar>(window))
        colorBar(*bar, m_services.page.Shape_Color[SkinPage::Back]);
    shape(window);
}

void Skin::loadRenamer(QWidget& window)
{
    const QString folder =
        m_services.file.INI_Read(settingsKeys::skinSection(), u"Skin Path"_s, m_services.paths.defaultSkin());
    dress(window, renamerTargets(), folder);
}

void Skin::Load_Thumbs(QWidget& window)
{
    const auto failure = dress(window, thumbsTargets(), m_services.state.SkinPath);
    shape(window);
    if (!failure)
        return;
    varnhold::makeTextsReadable(window, m_services.page.Shape_Color[SkinPage::Fore]);
    const bool isMissing =
        failure->number() == errors::fileNotFound || failure->number() == errors::pathNotFound;
    m_services.boxes.show({.text = isMissing ? missingSkinFileText(*failure) : skinErrorText(*failure),
                           .title = QCoreApplication::applicationName(),
                           .icon = BoxIcon::Exclamation,
                           .buttons = BoxButtons::Ok});
}

std::optional<RunTimeError> Skin::dress(QWidget& window, std::span<const SkinTarget> targets,
                                        const QString& folder)
{
    std::optional<RunTimeError> failure;
    SkinPictures pictures(folder);
    for (const SkinTarget& target : targets) {
        QWidget* const found = *target.control == '\0' ? &window : controlOf(window, target.control);
        if (found == nullptr)
            continue;
        try {
            applyTarget(target, *found, pictures);
        } catch (const RunTimeError& error) {
            if (!failure)
                failure = error;
        }
    }
    assignSkinColorsInside(window, m_services.page.Shape_Color);
    return failure;
}

void Skin::makeTextsReadable()
{
    // Windows that have no picture yet take the page's own colours.
    colorToolkit(m_services.page.Shape_Color, m_services.page.menuGround);
    for (const char* const name : coloredWindows) {
        if (const QWidget* const window = m_services.host.window(name))
            varnhold::makeTextsReadable(*window, m_services.page.Shape_Color[SkinPage::Fore]);
    }
    m_services.host.takeColors(m_services.page);
}

void Skin::report(const RunTimeError& error)
{
    SkinPage& page = m_services.page;
    if (error.number() == errors::pathNotFound) {
        m_services.host.showStatus(skinNotFoundStatus());
        m_services.host.showMessage(selectSkinFolderMessage());
        page.skinLoaded = false;
        page.availableSkinsColor = {yellow, red};
        m_services.host.askForSkinFolder();
        return;
    }
    const bool isMissing = error.number() == errors::fileNotFound;
    m_services.boxes.show({.text = isMissing ? missingSkinFileText(error) : skinErrorText(error),
                           .title = QCoreApplication::applicationName(),
                           .icon = BoxIcon::Exclamation,
                           .buttons = BoxButtons::Ok});
    if (!isMissing)
        return;
    // Without a pick in this run the path is written empty: the next start takes the default skin.
    m_services.settings.writeSkinName(m_acceptedName);
    m_services.settings.writeSkinPath(m_pickedFolder);
}

} // namespace varnhold
