#include "lookup/UpdateList.h"

#include "lookup/UpdateListTip.h"
#include "platform/Conversion.h"
#include "platform/RunTimeError.h"
#include "state/SizeText.h"

#include <algorithm>
#include <functional>
#include <limits>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRows = std::numeric_limits<qint16>::max();
constexpr std::array headers = {u"Pkg", u"Version", u"Bytes", u"Sha1", u"Url"};

constexpr quint8 noKey = 0;
constexpr quint8 newRowKey = 1;

double numberOf(QStringView value)
{
    // Digits alone, as good as always, need no closer look.
    constexpr qsizetype exactDigits = 15;
    quint64 number = 0;
    for (const QChar digit : value) {
        if (value.size() > exactDigits || digit < u'0' || digit > u'9')
            return doubleFromText(value.toString());
        number = number * 10 + (digit.unicode() - u'0');
    }
    return static_cast<double>(number);
}

} // namespace

UpdateList::UpdateList(QObject* parent) : QAbstractTableModel(parent), m_keys{{}, u"pkg"_s} {}

int UpdateList::count() const
{
    return static_cast<int>(m_marks.size());
}

std::size_t UpdateList::indexOf(int row) const
{
    if (row < 1 || row > count())
        throw RunTimeError(errors::indexOutOfBounds);
    return static_cast<std::size_t>(row - 1);
}

const UpdateList::Cell& UpdateList::cellOf(int row, std::size_t column) const
{
    return m_cells.at(column)[indexOf(row)];
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
    for (std::vector<Cell>& column : m_cells)
        column.clear();
    m_marks.clear();
    m_shared.clear();
    m_own.clear();
    m_numbers.reset();
    endFill();
}

void UpdateList::fillFrom(const QString& text, std::size_t rows)
{
    m_shared = text;
    for (std::vector<Cell>& column : m_cells)
        column.reserve(rows);
    m_marks.reserve(rows);
}

UpdateList::Cell UpdateList::store(QStringView text)
{
    const auto length = static_cast<qint32>(text.size());
    const QChar* const begin = m_shared.constData();
    // Pointers of different buffers have no order of their own; std::less gives them one.
    const std::less<> before;
    if (!before(text.data(), begin) && !before(begin + m_shared.size(), text.data() + text.size()))
        return {static_cast<qint32>(text.data() - begin), length};
    const auto start = static_cast<qint32>(m_own.size());
    m_own.append(text);
    return {~start, length};
}

QStringView UpdateList::viewOf(const Cell& cell) const
{
    if (cell.length < 0)
        return {};
    return cell.start < 0 ? QStringView(m_own).sliced(~cell.start, cell.length)
                          : QStringView(m_shared).sliced(cell.start, cell.length);
}

void UpdateList::addRow(QStringView text)
{
    if (count() == mostRows)
        throw RunTimeError(errors::overflow);
    if (m_fills == 0)
        beginInsertRows({}, count(), count());
    for (std::vector<Cell>& column : m_cells)
        column.emplace_back();
    m_cells.front().back() = store(text);
    m_marks.push_back({newRowKey, noKey, false, false});
    if (m_fills == 0)
        endInsertRows();
}

void UpdateList::setSubItem(int row, SubItem item, QStringView text)
{
    const std::size_t index = indexOf(row);
    m_cells.at(item)[index] = store(text);
    if (item == Size)
        m_marks[index].sizeIsBytes = false;
    tell(row, item);
}

void UpdateList::setBytes(int row, QStringView bytes)
{
    (void)numberOf(bytes);
    const std::size_t index = indexOf(row);
    if (!m_numbers)
        m_numbers.emplace(Grouping::On);
    m_cells[Size][index] = store(bytes);
    m_marks[index].sizeIsBytes = true;
    tell(row, Size);
}

QString UpdateList::shownText(int row, std::size_t column) const
{
    const QStringView text = viewOf(cellOf(row, column));
    if (column != Size || !m_marks[indexOf(row)].sizeIsBytes)
        return text.toString();
    QString size;
    appendSize(size, *m_numbers, numberOf(text), 2, true);
    return size.append(u" (").append(text).append(u" bytes)");
}

UpdateList::IconKey UpdateList::keyOf(const QString& key)
{
    const auto known = std::find(m_keys.begin(), m_keys.end(), key);
    const auto place = static_cast<IconKey>(known - m_keys.begin());
    if (known == m_keys.end())
        m_keys.push_back(key);
    return place;
}

void UpdateList::removeRow(int row)
{
    const auto index = static_cast<std::ptrdiff_t>(indexOf(row));
    if (m_fills == 0)
        beginRemoveRows({}, row - 1, row - 1);
    for (std::vector<Cell>& column : m_cells)
        column.erase(column.begin() + index);
    m_marks.erase(m_marks.begin() + index);
    if (m_fills == 0)
        endRemoveRows();
}

void UpdateList::setReportIcon(int row, const QString& key)
{
    m_marks[indexOf(row)].reportIcon = keyOf(key);
    tell(row, Version);
}

QString UpdateList::text(int row) const
{
    return shownText(row, 0);
}

QString UpdateList::subItem(int row, SubItem item) const
{
    return shownText(row, item);
}

bool UpdateList::hasSubItem(int row, SubItem item) const
{
    return cellOf(row, item).length >= 0;
}

QString UpdateList::icon(int row) const
{
    return m_keys[m_marks[indexOf(row)].icon];
}

void UpdateList::setIcon(int row, const QString& key)
{
    m_marks[indexOf(row)].icon = keyOf(key);
    tell(row, 0);
}

bool UpdateList::isChecked(int row) const
{
    return m_marks[indexOf(row)].checked;
}

void UpdateList::setChecked(int row, bool checked)
{
    m_marks[indexOf(row)].checked = checked;
    tell(row, 0);
}

void UpdateList::setCheckBoxes(bool shown)
{
    m_checkBoxes = shown;
    if (m_fills == 0 && !m_marks.empty())
        Q_EMIT dataChanged(index(0, 0), index(count() - 1, 0), {Qt::CheckStateRole});
}

int UpdateList::findUrl(const QString& url) const
{
    for (int row = 1; row <= count(); ++row)
        if (viewOf(cellOf(row, Url)) == url)
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
    const Mark& mark = m_marks[static_cast<std::size_t>(index.row())];
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return shownText(index.row() + 1, static_cast<std::size_t>(column));
    case Qt::CheckStateRole:
        if (column == 0 && m_checkBoxes)
            return mark.checked ? Qt::Checked : Qt::Unchecked;
        return {};
    case IconKeyRole:
        return m_keys[column == 0 ? mark.icon : column == Version ? mark.reportIcon : noKey];
    case Qt::AccessibleDescriptionRole:
        return iconMeaning(m_keys[mark.icon]);
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
