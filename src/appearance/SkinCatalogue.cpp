#include "appearance/SkinCatalogue.h"

#include <QDirIterator>

#include <algorithm>
#include <utility>

namespace varnhold {

SkinCatalogue::SkinCatalogue(QString root) : m_root(std::move(root))
{
    if (!m_root.endsWith(u'/'))
        m_root += u'/';
}

bool SkinCatalogue::build()
{
    // An empty root is listed each time: there is nothing that could stand.
    if (!m_entries.empty())
        return false;
    QDirIterator walk(m_root, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    while (walk.hasNext()) {
        walk.next();
        m_entries.push_back({walk.fileName(), m_root + walk.fileName()});
    }
    std::sort(m_entries.begin(), m_entries.end(), [](const Entry& one, const Entry& other) {
        const int order = QString::compare(one.caption, other.caption, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : one.caption < other.caption;
    });
    return true;
}

QString skinNameOf(const QString& path)
{
    const QString last = path.section(u'/', -1, -1, QString::SectionSkipEmpty);
    const qsizetype dot = last.lastIndexOf(u'.');
    return dot < 0 ? last : last.first(dot);
}

} // namespace varnhold
