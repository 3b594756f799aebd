#include "covers/CoverServers.h"

#include "state/SettingsFile.h"

#include <QHash>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

const QString& nameSection()
{
    static const QString name = u"ServerName"_s;
    return name;
}

const QString& urlSection()
{
    static const QString name = u"ServerUrl"_s;
    return name;
}

QHash<QString, QString> valuesOf(const QList<IniEntry>& entries)
{
    QHash<QString, QString> values;
    for (const IniEntry& entry : entries)
        values.insert(entry.key, entry.value);
    return values;
}

/// What a row is known by in its list.
QString keyOf(const CoverServer& row)
{
    return row.name + u' ' + row.url;
}

bool hasKey(const QList<CoverServer>& rows, const CoverServer& wanted)
{
    const QString key = keyOf(wanted);
    return std::any_of(rows.begin(), rows.end(), [&](const CoverServer& row) {
        return row.name.size() + row.url.size() == wanted.name.size() + wanted.url.size() &&
               keyOf(row) == key;
    });
}

} // namespace

QMap<int, CoverServer> CoverServers::read() const
{
    const QHash<QString, QString> names = valuesOf(m_file.readSection(nameSection()));
    const QHash<QString, QString> urls = valuesOf(m_file.readSection(urlSection()));
    QMap<int, CoverServer> servers;
    for (int n = 1;; ++n) {
        const QString key = QString::number(n);
        const QString name = names.value(key);
        if (name.isEmpty())
            return servers;
        if (name != u"EMPTY")
            servers.insert(n, {name, urls.value(key)});
    }
}

void CoverServers::readCoverServers()
{
    m_isRead = true;
    m_rows.clear();
    for (const CoverServer& server : read())
        add(server);
}

void CoverServers::readOnce()
{
    if (!m_isRead)
        readCoverServers();
}

bool CoverServers::add(const CoverServer& row)
{
    if (hasKey(m_rows, row))
        return false;
    m_rows.append(row);
    return true;
}

bool CoverServers::change(int index, const CoverServer& row)
{
    if (index < 0 || index >= m_rows.size() || hasKey(m_rows, row))
        return false;
    m_rows[index] = row;
    return true;
}

bool CoverServers::moveCoverServerRow(int index, int by)
{
    const int to = index + by;
    if (index < 0 || index >= m_rows.size() || to < 0 || to >= m_rows.size())
        return false;
    m_rows.move(index, to);
    return true;
}

void CoverServers::remove(QList<int> indexes)
{
    std::sort(indexes.begin(), indexes.end(), std::greater<>());
    for (const int index : std::as_const(indexes))
        if (index >= 0 && index < m_rows.size())
            m_rows.removeAt(index);
}

void CoverServers::saveCoverServers()
{
    if (m_rows.isEmpty())
        return;
    IniSection names{nameSection(), {}};
    IniSection urls{urlSection(), {}};
    for (int i = 0; i < m_rows.size(); ++i) {
        const QString key = QString::number(i + 1);
        names.entries.append({key, m_rows.at(i).name});
        urls.entries.append({key, m_rows.at(i).url});
    }
    m_file.replaceSections({names, urls});
    buildCoverServerMenu();
}

void CoverServers::buildCoverServerMenu()
{
    m_menu = read();
}

QString coverUrl(const QString& serverUrl, const QString& gameId)
{
    // A "#" or a "?" in an id would end the path.
    return serverUrl + QString::fromLatin1(QUrl::toPercentEncoding(gameId)) + u".jpg"_s;
}

} // namespace varnhold
