#pragma once

#include "appearance/MenuGlyphs.h"
#include "appearance/SkinCatalogue.h"
#include "appearance/SkinPage.h"
#include "appearance/SkinTargets.h"
#include "platform/RunTimeError.h"

#include <QHash>
#include <QPixmap>

#include <optional>

class QAction;
class QWidget;

namespace varnhold {

class FileDialogs;
class MessageBoxes;
class MessagePump;
class Settings;
class SettingsFile;
class SkinIni;
class SkinPictures;
class Sounds;
class clsTransForm;
struct ApplicationState;
struct Paths;

/// What the appearance asks of the program around it.
class SkinHost
{
public:
    virtual ~SkinHost() = default;
    virtual void showStatus(const QString& text) = 0;  ///< lblLoading, while there is a splash
    virtual void showMessage(const QString& text) = 0; ///< lblMessage
    /// A window by its name; null for one that this program does not have or has not made.
    virtual QWidget* window(const char* name) = 0;
    /// EnlargeMainWindow, which comes back for its pictures.
    virtual void enlargeMainWindow() = 0;
    /// Takes the skin's colours for what is no control of a window: the signs on buttons, tool tips.
    virtual void takeColors(const SkinPage& page) = 0;
    /// Fills the menu of cover servers from what Settings.ini holds.
    virtual void buildCoverServerMenu() = 0;
    /// Redraws the game list's icons, where they show.
    virtual void redrawIcons() = 0;
    /// Fills the menu mnuSkins from the catalogue; its entries are actions of the window frmMenu.
    virtual void showCatalogue(const SkinCatalogue& catalogue) = 0;
    /// The skin's folder is gone: opens the settings at the main window's corner on the skin page, with the
    /// focus on btn_Skin_Path.
    virtual void askForSkinFolder() = 0;
};

/// Puts a skin on the program's windows. Windows are trees of named objects: what goes where is a table, and
/// applying it is a walk over the windows that exist. Nothing is kept from one run to the next.
class Skin
{
public:
    struct Services
    {
        ApplicationState& state;
        Settings& settings;
        SettingsFile& file;
        const Paths& paths;
        SkinPage& page;
        MessageBoxes& boxes;
        FileDialogs& dialogs;
        Sounds& sounds;
        MessagePump& pump;
        clsTransForm& transForm;
        SkinHost& host;
    };

    explicit Skin(const Services& services);

    /// Reads the skin named in Settings.ini and applies all of it, in its order. A failure is told, ends the
    /// run where it stands, and leaves what was applied. False when it did not run through.
    bool ApplySkin();
    /// Colours of the skin page to every control, then the lists' colours and the catalogue.
    void ApplySkinColors();
    /// The same when the user has changed a colour; tells its failures itself.
    void recolor();
    /// Pictures of the main window in one of its sizes: 1 normal, 2 enlarged. A failure is told; false then,
    /// and the window had better stay as it is.
    bool loadLayout(int layout);
    /// Dresses and shapes a download window; failures are ignored.
    void Load_DL(QWidget& window);
    /// Dresses and shapes the thumbnail window. A failure is told, and changes no more than the window's
    /// look.
    void Load_Thumbs(QWidget& window);
    /// The renamer's faces, from the skin that Settings.ini names now; failures are ignored.
    void loadRenamer(QWidget& window);
    /// Cuts a window to its picture's shape.
    void shape(QWidget& window);

    /// The menu mnuSkins.
    void mnuSkin_Click(int index); ///< index of mnuSkin, from 1
    void mnuSkin_Path_Click();
    void mnuSkin_Refresh_Click();

    /// Gives each action of the window frmMenu its glyph, by its name.
    void attachMenuGlyphs();

    [[nodiscard]] const SkinCatalogue& catalogue() const { return m_catalogue; }

private:
    /// A window that no skin's application walks: its pictures and colours, as far as they go. The first
    /// failure.
    std::optional<RunTimeError> dress(QWidget& window, std::span<const SkinTarget> targets,
                                      const QString& folder);
    void apply();
    void applyMain(SkinPictures& pictures);
    void readColors(const SkinIni& ini);
    void applyTargets(std::span<const SkinTarget> targets, SkinPictures& pictures);
    void applyBlank(SkinPictures& pictures);
    void loadGlyphs(SkinPictures& pictures);
    void buildCatalogue();
    [[nodiscard]] QWidget* control(const char* window, const char* name) const;
    void pumpEvents();
    void report(const RunTimeError& error);
    void reshapeWindows();
    void makeTextsReadable();

    Services m_services;
    SkinCatalogue m_catalogue;
    QHash<QString, QPixmap> m_glyphs; ///< what frmMenu's picture arrays hold, by file name
    QString m_acceptedName;           ///< written back when a skin lacks a file
    QString m_pickedFolder;           ///< of the folder browser, in this run of the program
};

/// Which skin Settings.ini names; the default one when it names none.
void readSkinLocation(const SettingsFile& file, const Paths& paths, ApplicationState& state);

/// Dresses the splash, which stands before anything is loaded, by the skin's own picture for it; a skin
/// without one leaves it plain.
void dressSplash(QWidget& splash, SettingsFile& file, const Paths& paths, ApplicationState& state);

/// Puts one row's picture or faces on a control. Throws as SkinPictures::load().
void applyTarget(const SkinTarget& target, QWidget& control, SkinPictures& pictures);

} // namespace varnhold
