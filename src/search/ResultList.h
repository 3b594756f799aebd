#pragma once

#include "search/TextRows.h"

#include <QAbstractTableModel>

namespace varnhold {

/// What a search has found or a list file holds: ids in the first column, names in the second. List1 and
/// List2 each show one of them. Rows count from 0.
class ResultList : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int idColumn = 0;
    static constexpr int nameColumn = 1;

    void clear() { setRows({}); }
    void setRows(TextRows rows);
    [[nodiscard]] const TextRows& rows() const { return m_rows; }
    [[nodiscard]] int count() const { return m_rows.count(); }
    /// Empty for a row that is not there.
    [[nodiscard]] QString id(int row) const;
    [[nodiscard]] QString name(int row) const;
    /// Id and name in one, as tool tip, menu and clipboard show a row.
    [[nodiscard]] QString label(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    [[nodiscard]] bool has(int row) const { return row >= 0 && row < count(); }

    TextRows m_rows;
};

} // namespace varnhold
