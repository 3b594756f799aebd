#pragma once

#include "platform/IniFile.h"

#include <QList>
#include <QString>

namespace varnhold {

struct ApplicationState;
struct Paths;

/// The routines by which the program reads and writes Settings.ini, and Skin.ini of the skin in use. What
/// another hand wrote counts at once, the file name is worked out on each call, and no call reports a
/// failure: reading gives the default, a write that fails leaves the file as it was. A key that is there with
/// an empty value reads as empty, not as the default.
class SettingsFile
{
public:
    SettingsFile(const Paths& paths, const ApplicationState& state);

    /// At most 254 characters.
    [[nodiscard]] QString INI_Read(const QString& section, const QString& key, const QString& fallback) const;
    /// At most 1499 characters.
    [[nodiscard]] QString INI_Read_Long(const QString& section, const QString& key,
                                        const QString& fallback) const;
    /// Blanks round the value are cut off.
    void INI_Write(const QString& section, const QString& key, const QString& value);
    void INI_Delete_Section(const QString& section);

    /// All keys of a section of Settings.ini in their order, each value at most 254 characters.
    [[nodiscard]] QList<IniEntry> readSection(const QString& section) const;
    /// Replaces whole sections of Settings.ini in one write, so that a kill leaves all the old ones or all
    /// the new. Blanks round the values are cut off. False where the write failed and the old ones stand.
    bool replaceSections(const QList<IniSection>& sections);

    [[nodiscard]] QString Skin_Read(const QString& section, const QString& key,
                                    const QString& fallback) const;
    /// The value is written as it is.
    void Skin_Write(const QString& section, const QString& key, const QString& value);
    void Skin_Delete_Section(const QString& section);

    /// Removes what a kill during a write has left beside the two files and in the program's folder.
    void clearLeftovers() const;

private:
    [[nodiscard]] IniFile& settings() const;
    [[nodiscard]] IniFile& skin() const;

    const Paths& m_paths;
    const ApplicationState& m_state;
    mutable IniFile m_settings;
    mutable IniFile m_skin;
};

} // namespace varnhold
