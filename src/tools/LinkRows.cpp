#include "tools/LinkRows.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

struct LinkColumn
{
    const char* heading;
    const char* icon;
};

constexpr LinkColumn linkColumns[] = {
    {"Game ID", "psn"}, {"Game Name", "cover"}, {"Package", "pkg"}, {"System", "version"},
    {"Size", "size"},   {"SHA-1", "binary"},    {"Link", "url"},
};
static_assert(std::size(linkColumns) == LinkRow::Count);

} // namespace

QString linkRowText(const LinkRow& row)
{
    return row[LinkRow::Name] + u"\r\n"_s + row[LinkRow::Package] + u"\r\n"_s + row[LinkRow::System] + u'\r' +
           row[LinkRow::Size] + u"\r\n"_s + row[LinkRow::Sha1] + u"\r\n"_s + row[LinkRow::Url];
}

QString linkTip(const LinkRow& row)
{
    // The blanks align the values in the balloon's font; the section signs stand for the capital S on
    // purpose.
    return u"Game ID:                "_s + row[LinkRow::GameId] + u"\r\nPackage Version:   "_s +
           row[LinkRow::Package] + u"\r\n§ystem Version:     "_s + row[LinkRow::System] +
           u"\r\n§ize:                       "_s + row[LinkRow::Size] +
           u"\r\nUrl:                         "_s + row[LinkRow::Url];
}

void LinkRows::setRows(std::vector<LinkRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_order = sorted();
    endResetModel();
}

void LinkRows::removeRow(int row)
{
    beginRemoveRows({}, row, row);
    const auto at = m_order.begin() + row;
    const quint32 gone = *at;
    m_order.erase(at);
    m_rows.erase(m_rows.begin() + gone);
    for (quint32& place : m_order)
        place -= place > gone ? 1 : 0;
    endRemoveRows();
}

const LinkRow& LinkRows::row(int row) const
{
    return m_rows.at(m_order.at(static_cast<std::size_t>(row)));
}

void LinkRows::clickColumn(int column)
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<quint32> before = m_order;
    if (column == m_sortColumn) {
        m_sortOrder = m_sortOrder == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
        std::ranges::reverse(m_order);
    } else {
        m_sortColumn = column;
        m_sortOrder = Qt::AscendingOrder;
        m_order = sorted();
    }
    std::vector<int> shownAt(m_rows.size());
    for (std::size_t shown = 0; shown < m_order.size(); ++shown)
        shownAt[m_order[shown]] = static_cast<int>(shown);
    const QModelIndexList held = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex& old : held)
        moved.append(index(shownAt[before[static_cast<std::size_t>(old.row())]], old.column()));
    changePersistentIndexList(held, moved);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

std::vector<quint32> LinkRows::sorted() const
{
    std::vector<quint32> order(m_rows.size());
    std::iota(order.begin(), order.end(), 0);
    if (m_sortColumn < 0)
        return order;
    std::vector<QString> keys;
    keys.reserve(m_rows.size());
    for (const LinkRow& row : m_rows)
        keys.push_back(row.texts[static_cast<std::size_t>(m_sortColumn)].toCaseFolded());
    std::ranges::stable_sort(order, [&](quint32 one, quint32 other) { return keys[one] < keys[other]; });
    if (m_sortOrder == Qt::DescendingOrder)
        std::ranges::reverse(order);
    return order;
}

int LinkRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

int LinkRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : LinkRow::Count;
}

QVariant LinkRows::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::DisplayRole)
        return row(index.row()).texts[static_cast<std::size_t>(index.column())];
    if (role == IconKeyRole)
        return QString::fromLatin1(linkColumns[index.column()].icon);
    return {};
}

QVariant LinkRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= LinkRow::Count)
        return {};
    return QString::fromLatin1(linkColumns[section].heading);
}

} // namespace varnhold
