#pragma once

#include "app/settings/SettingsPage.h"

namespace varnhold {

/// How the program behaves: its way out, its windows, questions about certificates.
class OptionsPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit OptionsPage(Settings& settings);

Q_SIGNALS:
    /// The mouse let go of an Auto box; raised before the box's setting changes.
    void autoSslReleased();
    void rightToLeftChosen(bool on); ///< chk_RighttoLeft, which is cleared at every start and stored nowhere

private:
    void addAutoBox(int index, int top);
    void addWay(int index, int top);
};

} // namespace varnhold
