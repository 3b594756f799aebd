#pragma once

#include "state/DisplayLocale.h"

#include <QAbstractTableModel>
#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace varnhold {

/// The update list, ListView1: one row for each package of the document, in document order, never sorted.
/// Rows are numbered from 1 in this interface, as everywhere in the program's logic; the model's own
/// QModelIndex rows count from 0.
class UpdateList : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Positions of sub-items; the row text is column 0 of the view.
    enum SubItem { Version = 1, Size = 2, Binary = 3, Url = 4 };

    /// Roles beside the usual ones: icon keys as texts, since the core knows no pictures.
    enum Role {
        IconKeyRole = Qt::UserRole, ///< row icon for column 0, report icon ("n/a") for sub-item 1
    };

    explicit UpdateList(QObject* parent = nullptr);

    [[nodiscard]] int count() const;
    void clear();
    /// Announces a fill of so many rows from one text. The list shares that text (no copy is made), and what
    /// is set from views into it is kept as a place in it; all other texts are copied.
    void fillFrom(const QString& text, std::size_t rows);
    /// Adds a row with small icon "pkg". RunTimeError 6 when the list would hold more rows than a 16-bit
    /// index reaches.
    void addRow(QStringView text);
    /// Sets a sub-item though an earlier one may be missing. RunTimeError 35600 when row is not 1 to count().
    void setSubItem(int row, SubItem item, QStringView text);
    void removeRow(int row); ///< 35600 out of range
    /// Sub-item Size of a package of so many bytes, in digits as a rule. It shows as size and number; the
    /// words are made when they are asked for. Throws what the conversion of something else to a number does.
    void setBytes(int row, QStringView bytes);
    void setReportIcon(int row, const QString& key); ///< of sub-item 1

    [[nodiscard]] QString text(int row) const;                  ///< row text; 35600 out of range
    [[nodiscard]] QString subItem(int row, SubItem item) const; ///< empty when missing; 35600 out of range
    [[nodiscard]] bool hasSubItem(int row, SubItem item) const;

    [[nodiscard]] QString icon(int row) const;
    void setIcon(int row, const QString& key); ///< "pkg", "pkg-plus", "pkg-red", "plus", "pkg-dl"
    [[nodiscard]] bool isChecked(int row) const;
    void setChecked(int row, bool checked);
    /// Check boxes are off by design.
    void setCheckBoxes(bool shown);

    /// First row whose url is exactly the given one; 0 when there is none.
    [[nodiscard]] int findUrl(const QString& url) const;

    /// Between beginFill and endFill views are told nothing; endFill resets them once. Nestable.
    void beginFill();
    void endFill();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    /// A place in a text, in as few bytes as a long list needs to stay near the processor; the texts that a
    /// browser hands out end long before 32 bits do.
    struct Cell
    {
        qint32 start = 0;   ///< in the shared text; ~start below 0, in the list's own
        qint32 length = -1; ///< below 0: the sub-item is missing
    };
    using IconKey = quint8; ///< place of a key in m_keys; there are a handful of them
    struct Mark
    {
        IconKey icon = 0;
        IconKey reportIcon = 0;
        bool checked = false;
        bool sizeIsBytes = false; ///< the cell of Size holds the number alone
    };
    static constexpr std::size_t columns = 5; ///< the row text, then the sub-items

    [[nodiscard]] Cell store(QStringView text);
    [[nodiscard]] QStringView viewOf(const Cell& cell) const;
    [[nodiscard]] QString shownText(int row, std::size_t column) const;
    IconKey keyOf(const QString& key);
    [[nodiscard]] std::size_t indexOf(int row) const; ///< RunTimeError 35600 out of range
    [[nodiscard]] const Cell& cellOf(int row, std::size_t column) const;
    void tell(int row, int column);

    std::array<std::vector<Cell>, columns> m_cells; ///< by column, since a fill goes column by column
    std::vector<Mark> m_marks;                      ///< by row
    std::vector<QString> m_keys;           ///< of icons; the first is of none, the second a new row's
    QString m_shared;                      ///< the text that the fill came from
    QString m_own;                         ///< all other texts, one after the other
    std::optional<NumberFormat> m_numbers; ///< of the sizes, from a fill's first on
    int m_fills = 0;
    bool m_checkBoxes = false;
};

} // namespace varnhold
