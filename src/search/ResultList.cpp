#include "search/ResultList.h"

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

void ResultList::setRows(TextRows rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

QString ResultList::id(int row) const
{
    return has(row) ? m_rows.id(row).toString() : QString();
}

QString ResultList::name(int row) const
{
    return has(row) ? m_rows.name(row).toString() : QString();
}

QString ResultList::label(int row) const
{
    return id(row) + u"-["_s + name(row) + u']';
}

int ResultList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

int ResultList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant ResultList::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DisplayRole)
        return index.column() == idColumn ? id(index.row()) : name(index.row());
    return {};
}

} // namespace varnhold
