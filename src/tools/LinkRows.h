#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <array>
#include <vector>

namespace varnhold {

/// A saved link: the row text, then sub-items 1 to 6. A missing sub-item is empty.
struct LinkRow
{
    enum Column { GameId, Name, Package, System, Size, Sha1, Url, Count };

    std::array<QString, Count> texts;

    [[nodiscard]] const QString& operator[](Column column) const
    {
        return texts[static_cast<std::size_t>(column)];
    }
};

/// Sub-items 1 to 6, a line each. The break behind the third is a lone CR, which is meant.
QString linkRowText(const LinkRow& row);
/// Body of the balloon over a row; its title is the name.
QString linkTip(const LinkRow& row);

/// The rows of lstVwLinks, in the order in which they came until a column is sorted by. Rows count from 0.
class LinkRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Role { IconKeyRole = Qt::UserRole };

    using QAbstractTableModel::QAbstractTableModel;

    /// A sort that is on stays on for them.
    void setRows(std::vector<LinkRow> rows);
    void removeRow(int row);
    [[nodiscard]] int count() const { return static_cast<int>(m_order.size()); }
    [[nodiscard]] const LinkRow& row(int row) const; ///< throws std::out_of_range

    /// The click on a column's head: as text and without regard to case, equal rows in the order in which
    /// they came; again, and all of it is reversed.
    void clickColumn(int column);
    [[nodiscard]] int sortColumn() const { return m_sortColumn; } ///< -1: none
    [[nodiscard]] Qt::SortOrder sortOrder() const { return m_sortOrder; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] std::vector<quint32> sorted() const;

    std::vector<LinkRow> m_rows;
    std::vector<quint32> m_order; ///< place in m_rows by shown row
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace varnhold
