#include "app/menu/MenuCommands.h"

#include <utility>

namespace varnhold {

namespace {

/// Name and index; 0 for what is no entry of an array.
std::pair<QString, int> split(const QString& entry)
{
    const qsizetype bracket = entry.indexOf(u'(');
    if (bracket < 0)
        return {entry, 0};
    return {entry.first(bracket), QStringView(entry).mid(bracket + 1).chopped(1).toInt()};
}

} // namespace

void MenuCommands::bind(const char* entry, Routine routine)
{
    bindEach(entry, [routine = std::move(routine)](int) { routine(); });
}

void MenuCommands::bindEach(const char* array, IndexedRoutine routine)
{
    const QString name = QString::fromLatin1(array);
    m_routines.insert(name, std::move(routine));
    Q_EMIT bound(name);
}

bool MenuCommands::has(const QString& entry) const
{
    return m_routines.contains(split(entry).first);
}

void MenuCommands::run(const QString& entry) const
{
    const auto [name, index] = split(entry);
    if (const auto found = m_routines.constFind(name); found != m_routines.cend())
        (*found)(index);
}

} // namespace varnhold
