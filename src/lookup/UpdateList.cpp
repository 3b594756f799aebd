#include "lookup/UpdateList.h"

#include "platform/RunTimeError.h"

#include <array>
#include <limits>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRows = std::numeric_limits<qint16>::max();
constexpr std::array headers = {u"Pkg", u"Version", u"Bytes", u"Sha1", u"Url"};

} // namespace

UpdateList::UpdateList(QObject* parent) : QAbstractTableModel(parent) {}

int UpdateList::count() const
{
    return static_cast<int>(m_rows.size());
}

UpdateList::Row& UpdateList::at(int row)
{
    if (row < 1 || row > count())
        throw RunTimeError(errors::indexOutOfBounds);
    return m_rows[static_cast<std::size_t>(row - 1)];
}

const UpdateList::Row& UpdateList::at(int row) const
{
    if (row < 1 || row > count())
        throw RunTimeError(errors::indexOutOfBounds);
    return m_rows[static_cast<std::size_t>(row - 1)];
}

void UpdateList::tell(int row, int column)
{
    if (m_fills == 0) {
        const QModelIndex cell = index(row - 1, column);
        Q_EMIT dataChanged(cell, cell);
    }
}

void UpdateList::beginFill()
{
    if (m_fills++ == 0)
        beginResetModel();
}

void UpdateList::endFill()
{
    if (--m_fills == 0)
        endResetModel();
}

void UpdateList::clear()
{
    beginFill();
    m_rows.clear();
    endFill();
}

void UpdateList::reserve(std::size_t rows)
{
    m_rows.reserve(rows);
}

void UpdateList::addRow(const QString& text)
{
    if (count() == mostRows)
        throw RunTimeError(errors::overflow);
    if (m_fills == 0)
        beginInsertRows({}, count(), count());
    Row& row = m_rows.emplace_back();
    row.text = text;
    row.icon = u"pkg"_s;
    if (m_fills == 0)
        endInsertRows();
}

void UpdateList::setSubItem(int row, SubItem item, const QString& text)
{
    Row& target = at(row);
    target.subItems[item - 1] = text;
    target.present[item - 1] = true;
    tell(row, item);
}

void UpdateList::setReportIcon(int row, const QString& key)
{
    at(row).reportIcon = key;
    tell(row, Version);
}

QString UpdateList::text(int row) const
{
    return at(row).text;
}

QString UpdateList::subItem(int row, SubItem item) const
{
    return at(row).subItems[item - 1];
}

bool UpdateList::hasSubItem(int row, SubItem item) const
{
    return at(row).present[item - 1];
}

QString UpdateList::icon(int row) const
{
    return at(row).icon;
}

void UpdateList::setIcon(int row, const QString& key)
{
    at(row).icon = key;
    tell(row, 0);
}

bool UpdateList::isChecked(int row) const
{
    return at(row).checked;
}

void UpdateList::setChecked(int row, bool checked)
{
    at(row).checked = checked;
    tell(row, 0);
}

void UpdateList::setCheckBoxes(bool shown)
{
    m_checkBoxes = shown;
    if (m_fills == 0 && !m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(count() - 1, 0), {Qt::CheckStateRole});
}

int UpdateList::findUrl(const QString& url) const
{
    for (int row = 1; row <= count(); ++row)
        if (m_rows[static_cast<std::size_t>(row - 1)].subItems[Url - 1] == url)
            return row;
    return 0;
}

int UpdateList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

int UpdateList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(headers.size());
}

QVariant UpdateList::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return column == 0 ? row.text : row.subItems[column - 1];
    case Qt::CheckStateRole:
        if (column == 0 && m_checkBoxes)
            return row.checked ? Qt::Checked : Qt::Unchecked;
        return {};
    case IconKeyRole:
        return column == 0 ? row.icon : column == Version ? row.reportIcon : QString();
    default:
        return {};
    }
}

bool UpdateList::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !m_checkBoxes || index.column() != 0 ||
        !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    setChecked(index.row() + 1, value.toInt() == Qt::Checked);
    return true;
}

QVariant UpdateList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columnCount())
        return {};
    return QStringView(headers.at(static_cast<std::size_t>(section))).toString();
}

Qt::ItemFlags UpdateList::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() == 0 && m_checkBoxes)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

} // namespace varnhold
