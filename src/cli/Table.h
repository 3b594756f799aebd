#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace varnhold::cli {

/// Rows under headings in aligned columns, two blanks apart. Text is made printable.
class Table
{
public:
    explicit Table(const QStringList& headings) { addRow(headings); }

    /// As many cells as there are headings.
    void addRow(const QStringList& cells);
    [[nodiscard]] QString text() const;

private:
    QList<QStringList> m_rows;
};

} // namespace varnhold::cli
