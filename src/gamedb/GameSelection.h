#pragma once

#include <functional>

namespace varnhold {

class CoverFolder;
class EntryView;
class LookupView;
class Settings;
class Sounds;
class UpdateList;
struct ApplicationState;

/// What choosing a row of the game list does to the main window. It looks nothing up.
class GameSelection
{
public:
    struct Services
    {
        ApplicationState& state;
        const Settings& settings;
        const CoverFolder& covers;
        UpdateList& updates;
        Sounds& sounds;
        LookupView& view;
        EntryView& entry;
    };

    explicit GameSelection(const Services& services) : m_services(services) {}

    /// loadGameDetails of the selected game; it tells its failures itself.
    void setEntryLoader(std::function<void()> loader) { m_loadEntry = std::move(loader); }
    void loadEntry();

    void MorphListBox1_Click();
    /// Of any key: shows the cover's file, and no notes.
    void MorphListBox1_KeyUp();

private:
    void showTitle();

    Services m_services;
    std::function<void()> m_loadEntry;
};

} // namespace varnhold
