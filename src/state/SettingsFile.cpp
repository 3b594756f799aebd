#include "state/SettingsFile.h"

#include "platform/Files.h"
#include "platform/ReplaceFile.h"
#include "platform/Trim.h"
#include "state/ApplicationState.h"
#include "state/Paths.h"

#include <QFileInfo>
#include <QSet>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

// Both include the end mark that the value is cut for.
constexpr int bufferSize = 255;
constexpr int longBufferSize = 1500;

} // namespace

SettingsFile::SettingsFile(const Paths& paths, const ApplicationState& state)
    : m_paths(paths), m_state(state), m_settings(paths.settingsIni()), m_skin(QString())
{
}

QString SettingsFile::INI_Read(const QString& section, const QString& key, const QString& fallback) const
{
    return settings().read(section, key, fallback, bufferSize);
}

QString SettingsFile::INI_Read_Long(const QString& section, const QString& key, const QString& fallback) const
{
    return settings().read(section, key, fallback, longBufferSize);
}

void SettingsFile::INI_Write(const QString& section, const QString& key, const QString& value)
{
    settings().write(section, key, trimBlanks(value));
}

void SettingsFile::INI_Delete_Section(const QString& section)
{
    settings().deleteSection(section);
}

QString SettingsFile::Skin_Read(const QString& section, const QString& key, const QString& fallback) const
{
    return skin().read(section, key, fallback, bufferSize);
}

void SettingsFile::Skin_Write(const QString& section, const QString& key, const QString& value)
{
    skin().write(section, key, value);
}

void SettingsFile::Skin_Delete_Section(const QString& section)
{
    skin().deleteSection(section);
}

QList<IniEntry> SettingsFile::readSection(const QString& section) const
{
    return settings().readSection(section, bufferSize);
}

bool SettingsFile::replaceSections(const QList<IniSection>& sections)
{
    QList<IniSection> trimmed = sections;
    for (IniSection& section : trimmed) {
        for (IniEntry& entry : section.entries)
            entry.value = trimBlanks(entry.value);
    }
    return settings().replaceSections(trimmed);
}

void SettingsFile::clearLeftovers() const
{
    // Either file may be a link to one that stands elsewhere.
    const QStringList folders = {m_paths.root,
                                 QFileInfo(settings().path()).canonicalFilePath().section(u'/', 0, -2),
                                 QFileInfo(skin().path()).canonicalFilePath().section(u'/', 0, -2)};
    for (const QString& folder : QSet<QString>(folders.begin(), folders.end())) {
        if (!folder.isEmpty())
            varnhold::clearLeftovers(folder);
    }
}

IniFile& SettingsFile::settings() const
{
    const QString path = m_paths.settingsIni();
    if (m_settings.path() != path)
        m_settings = IniFile(path);
    return m_settings;
}

IniFile& SettingsFile::skin() const
{
    // Skins come from systems that take no notice of case.
    const QString path = foldedFile(m_state.SkinPath, u"Skin.ini"_s);
    if (m_skin.path() != path)
        m_skin = IniFile(path);
    return m_skin;
}

} // namespace varnhold
