#include "state/SettingsFile.h"

#include "platform/Files.h"
#include "platform/IniFile.h"
#include "platform/Trim.h"
#include "state/ApplicationState.h"
#include "state/Paths.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

// Both include the end mark that the value is cut for.
constexpr int bufferSize = 255;
constexpr int longBufferSize = 1500;

} // namespace

SettingsFile::SettingsFile(const Paths& paths, const ApplicationState& state) : m_paths(paths), m_state(state)
{
}

QString SettingsFile::INI_Read(const QString& section, const QString& key, const QString& fallback) const
{
    return IniFile(m_paths.settingsIni()).read(section, key, fallback, bufferSize);
}

QString SettingsFile::INI_Read_Long(const QString& section, const QString& key, const QString& fallback) const
{
    return IniFile(m_paths.settingsIni()).read(section, key, fallback, longBufferSize);
}

void SettingsFile::INI_Write(const QString& section, const QString& key, const QString& value)
{
    IniFile(m_paths.settingsIni()).write(section, key, trimBlanks(value));
}

void SettingsFile::INI_Delete_Section(const QString& section)
{
    IniFile(m_paths.settingsIni()).deleteSection(section);
}

QString SettingsFile::Skin_Read(const QString& section, const QString& key, const QString& fallback) const
{
    return IniFile(skinIni()).read(section, key, fallback, bufferSize);
}

void SettingsFile::Skin_Write(const QString& section, const QString& key, const QString& value)
{
    IniFile(skinIni()).write(section, key, value);
}

void SettingsFile::Skin_Delete_Section(const QString& section)
{
    IniFile(skinIni()).deleteSection(section);
}

QString SettingsFile::skinIni() const
{
    // Skins come from systems that take no notice of case.
    return foldedFile(m_state.SkinPath, u"Skin.ini"_s);
}

} // namespace varnhold
