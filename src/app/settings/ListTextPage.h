#pragma once

#include "app/settings/SettingsPage.h"

#include <array>

namespace varnhold {

class Sounds;

/// Which lines the report of the update list has, with a sample of it.
class ListTextPage : public SettingsPage
{
    Q_OBJECT

public:
    ListTextPage(Settings& settings, Sounds& sounds);

private:
    void addLine(int index, const QString& caption, const QPoint& place);
    void showSample();

    Sounds& m_sounds;
    std::array<QCheckBox*, 7> m_boxes{};
    QLabel* m_sample;
};

} // namespace varnhold
