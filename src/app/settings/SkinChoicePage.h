#pragma once

#include "app/settings/SettingsPage.h"

namespace varnhold {

class SkinPage;
struct ApplicationState;

/// The choice of a skin, and its colours.
class SkinChoicePage : public SettingsPage
{
    Q_OBJECT

public:
    SkinChoicePage(Settings& settings, const SkinPage& skin, const ApplicationState& state);

    /// Gives btn_Skin_Path the focus.
    void askForSkin();

Q_SIGNALS:
    void skinMenuWanted(const QPoint& globalPosition); ///< btn_Skin_Path

private:
    void showSkin();

    const SkinPage& m_skin;
    ButtonEx* m_choose;
};

} // namespace varnhold
