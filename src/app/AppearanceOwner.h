#pragma once

#include "app/Common.h"
#include "app/SkinnedWindows.h"
#include "appearance/Skin.h"
#include "appearance/TransForm.h"

#include <QObject>

namespace varnhold {

/// The program's looks: skins, opacity, and the commands and controls that change them.
class AppearanceOwner : public QObject
{
    Q_OBJECT

public:
    AppearanceOwner(const Common& common, SkinPage& page);

    void applySkin() { m_skin.ApplySkin(); } ///< to all windows; tells its failures itself
    void shape(QWidget& window) { m_skin.shape(window); }
    /// Of a window that stays; see SkinnedWindows.
    void setOpacity(OpacityOf which, int value) { m_windows.setOpacity(which, value); }
    /// Dresses and shapes a download window; failures are ignored.
    void dressDownload(QWidget& window);

private:
    void connectWindows(const Common& common);
    void bindCommands(const Common& common);

    SkinnedWindows m_windows;
    clsTransForm m_transForm;
    Skin m_skin;
};

} // namespace varnhold
