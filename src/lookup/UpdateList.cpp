#include "lookup/UpdateList.h"

#include "platform/RunTimeError.h"

#include <array>
#include <functional>
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
    m_shared.clear();
    m_own.clear();
    endFill();
}

void UpdateList::fillFrom(const QString& text, std::size_t rows)
{
    m_shared = text;
    m_rows.reserve(rows);
}

UpdateList::Cell UpdateList::store(QStringView text)
{
    const QChar* const begin = m_shared.constData();
    // Pointers of different buffers have no order of their own; std::less gives them one.
    const std::less<> before;
    if (!before(text.data(), begin) && !before(begin + m_shared.size(), text.data() + text.size()))
        return {text.data() - begin, text.size(), true};
    m_own.append(text);
    return {m_own.size() - text.size(), text.size(), false};
}

QStringView UpdateList::viewOf(const Cell& cell) const
{
    return cell.length < 0 ? QStringView()
                           : QStringView(cell.isShared ? m_shared : m_own).sliced(cell.start, cell.length);
}

QString UpdateList::textOf(const Cell& cell) const
{
    return viewOf(cell).toString();
}

void UpdateList::addRow(QStringView text)
{
    if (count() == mostRows)
        throw RunTimeError(errors::overflow);
    if (m_fills == 0)
        beginInsertRows({}, count(), count());
    Row& row = m_rows.emplace_back();
    row.cells[0] = store(text);
    row.icon = u"pkg"_s;
    if (m_fills == 0)
        endInsertRows();
}

void UpdateList::setSubItem(int row, SubItem item, QStringView text)
{
    at(row).cells[item] = store(text);
    tell(row, item);
}

void UpdateList::setReportIcon(int row, const QString& key)
{
    at(row).reportIcon = key;
    tell(row, Version);
}

QString UpdateList::text(int row) const
{
    return textOf(at(row).cells[0]);
}

QString UpdateList::subItem(int row, SubItem item) const
{
    return textOf(at(row).cells[item]);
}

bool UpdateList::hasSubItem(int row, SubItem item) const
{
    return at(row).cells[item].length >= 0;
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
        if (viewOf(m_rows[static_cast<std::size_t>(row - 1)].cells[Url]) == url)
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
        return textOf(row.cells[column]);
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
