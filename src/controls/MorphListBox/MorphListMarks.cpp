#include "controls/MorphListBox/MorphListMarks.h"

#include <QPainter>
#include <QVarLengthArray>

#include <algorithm>

namespace varnhold {

namespace {

constexpr int checkBoxSide = 13; // the grid that the marks are designed on

void fill(QPainter& painter, const QVarLengthArray<QRect, 64>& rectangles, const QColor& color)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRects(rectangles.constData(), int(rectangles.size()));
    painter.restore();
}

} // namespace

void paintArrow(QPainter& painter, const QRect& place, bool up, const QColor& color)
{
    const int rows = std::min(place.width(), place.height()) / 4;
    const int middle = place.width() % 2; // the tip is as wide as it takes to stand in the middle
    const int top = place.top() + (place.height() - rows) / 2;
    QVarLengthArray<QRect, 64> lines;
    for (int i = 0; i < rows; ++i) {
        const int width = 2 * i + 2 - middle;
        lines.append(
            QRect(place.left() + (place.width() - width) / 2, up ? top + i : top + rows - 1 - i, width, 1));
    }
    fill(painter, lines, color);
}

void paintFrame(QPainter& painter, const QRect& place, int line, const QColor& color)
{
    if (place.width() <= 2 * line || place.height() <= 2 * line) {
        painter.fillRect(place, color);
        return;
    }
    const int inner = place.height() - 2 * line;
    fill(painter,
         {QRect(place.left(), place.top(), place.width(), line),
          QRect(place.left(), place.bottom() + 1 - line, place.width(), line),
          QRect(place.left(), place.top() + line, line, inner),
          QRect(place.right() + 1 - line, place.top() + line, line, inner)},
         color);
}

void paintCheckMark(QPainter& painter, const QRect& box, int style, const QColor& color)
{
    const int side = std::min(box.width(), box.height());
    const auto grid = [side](int units) { return units * side / checkBoxSide; };
    if (style == 2) {
        const int inset = grid(3);
        painter.fillRect(box.adjusted(inset, inset, -inset, -inset), color);
        return;
    }
    // A stroke three units high that goes one device pixel down or up with each column.
    QVarLengthArray<QRect, 64> columns;
    const int left = box.left() + grid(3);
    const int width = side - 2 * grid(3);
    const int height = std::max(2, grid(3));
    const int corner = style == 0 ? width - 1 : grid(2);
    for (int x = 0; x < width; ++x) {
        if (style == 0) {
            const int top = box.top() + grid(3);
            const int thick = std::max(1, grid(2));
            const int room = width - thick;
            const int y = x * room / std::max(1, width - 1);
            columns.append(QRect(left + x, top + y, 1, thick));
            columns.append(QRect(left + x, top + room - y, 1, thick));
        } else {
            const int y = x <= corner ? x - corner : corner - x;
            columns.append(QRect(left + x, box.top() + grid(7) + y, 1, height));
        }
    }
    fill(painter, columns, color);
}

void paintDottedFrame(QPainter& painter, const QRect& place, int line, const QColor& color)
{
    if (place.width() < line || place.height() < line)
        return;
    QVarLengthArray<QRect, 64> dots;
    const int columns = place.width() / line;
    const int rows = place.height() / line;
    const auto dot = [&](int column, int row) {
        if ((column + row) % 2 == 0)
            dots.append(QRect(place.left() + column * line, place.top() + row * line, line, line));
    };
    for (int column = 0; column < columns; ++column) {
        dot(column, 0);
        if (rows > 1)
            dot(column, rows - 1);
    }
    for (int row = 1; row < rows - 1; ++row) {
        dot(0, row);
        if (columns > 1)
            dot(columns - 1, row);
    }
    fill(painter, dots, color);
}

} // namespace varnhold
