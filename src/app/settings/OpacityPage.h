#pragma once

#include "app/settings/SettingsPage.h"

namespace varnhold {

/// A slider for each kind of window.
class OpacityPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit OpacityPage(Settings& settings);

Q_SIGNALS:
    /// The user moved a slider; its key is written.
    void opacityMoved(varnhold::OpacityOf which, int value);

private:
    void addOpacity(OpacityOf which, const QString& heading, int top);
};

} // namespace varnhold
