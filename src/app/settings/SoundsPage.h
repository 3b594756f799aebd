#pragma once

#include "app/settings/SettingsPage.h"

#include <array>

class QRadioButton;

namespace varnhold {

class FileDialogs;
class Sounds;

/// The four sounds and whether they are played.
class SoundsPage : public SettingsPage
{
    Q_OBJECT

public:
    SoundsPage(Settings& settings, Sounds& sounds, FileDialogs& dialogs);

private:
    void addRow(int index);
    void chooseSound();

    Sounds& m_sounds;
    FileDialogs& m_dialogs;
    std::array<QRadioButton*, 4> m_rows{};
};

} // namespace varnhold
