#pragma once

#include "app/Common.h"
#include "app/SkinnedWindows.h"
#include "appearance/Skin.h"
#include "appearance/SkinChoices.h"
#include "appearance/SkinPage.h"
#include "appearance/TransForm.h"

#include <QObject>

namespace varnhold {

class SkinChoicePage;

/// The program's looks: skins, opacity, and the commands and controls that change them.
class AppearanceOwner : public QObject
{
    Q_OBJECT

public:
    explicit AppearanceOwner(const Common& common);

    [[nodiscard]] const SkinPage& page() const { return m_page; }
    /// To all windows; tells its failures itself.
    void applySkin();
    void shape(QWidget& window) { m_skin.shape(window); }
    /// One more window that the skin dresses; it is there as long as the program.
    void add(QWidget& window) { m_windows.add(window); }
    /// Of a window that stays; see SkinnedWindows.
    void setOpacity(OpacityOf which, int value) { m_windows.setOpacity(which, value); }
    /// Fills the menu of cover servers; a step of every run of the skin's colours.
    void setCoverMenu(std::function<void()> build) { m_windows.setCoverMenu(std::move(build)); }
    void setIconRedraw(std::function<void()> redraw) { m_windows.setIconRedraw(std::move(redraw)); }
    /// Dresses and shapes a download window; failures are ignored.
    void dressDownload(QWidget& window);
    /// Dresses and shapes the thumbnail window; tells its failures itself.
    void dressThumbs(QWidget& window);
    /// Gives the renamer its buttons' faces and the main window's opacity.
    void dressRenamer(QWidget& window);

Q_SIGNALS:
    /// The user moved a slider of the opacity page; its key is written.
    void opacityMoved(varnhold::OpacityOf which, int value);

private:
    void connectWindows();
    void bindCommands();

    Common m_common;
    SkinPage m_page;
    SkinChoicePage& m_skinChoicePage;
    SkinnedWindows m_windows;
    clsTransForm m_transForm;
    Skin m_skin;
    SkinChoices m_choices;
};

} // namespace varnhold
