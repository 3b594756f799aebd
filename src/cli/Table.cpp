#include "cli/Table.h"

#include "cli/Terminal.h"

namespace varnhold::cli {

using namespace Qt::StringLiterals;

void Table::addRow(const QStringList& cells)
{
    QStringList row;
    for (const QString& cell : cells)
        row.append(printable(cell));
    m_rows.append(row);
}

QString Table::text() const
{
    QList<qsizetype> widths(m_rows.first().size(), 0);
    for (const QStringList& row : m_rows)
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths.at(i), row.at(i).size());
    QStringList lines;
    for (const QStringList& row : m_rows) {
        QStringList cells;
        for (qsizetype i = 0; i < row.size(); ++i)
            cells.append(i + 1 == row.size() ? row.at(i) : row.at(i).leftJustified(widths.at(i)));
        lines.append(cells.join(u"  "_s));
    }
    return lines.join(u'\n');
}

} // namespace varnhold::cli
