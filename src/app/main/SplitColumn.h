#pragma once

#include <QObject>

class QWidget;

namespace varnhold {

/// A column of the main window: a control, a bar that divides the column, a control below it. The bar is
/// dragged with the left button or moved with the arrow keys.
class SplitColumn : public QObject
{
    Q_OBJECT

public:
    /// `floorTwips`: the least top of the bar.
    SplitColumn(QWidget& upper, QWidget& bar, QWidget& lower, int floorTwips);

    [[nodiscard]] double barTop() const { return m_barTop; } ///< twips
    void setBarTop(double twips) { m_barTop = twips; }       ///< without limits until lay()
    void setSize(int widthPixels, int heightTwips);
    /// Brings the bar within its limits and places the three.
    void lay();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void barMoved(); ///< barTop() is where mouse or key want it; lay() is the listener's

private:
    void moveBar(double twips);

    QWidget& m_upper;
    QWidget& m_bar;
    QWidget& m_lower;
    int m_floor;
    double m_barTop = 0;
    int m_width = 0;
    int m_height = 0;
};

} // namespace varnhold
