#pragma once

#include "controls/XP_ProgressBar/ProgressState.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace varnhold {

/// A percentage in one of ten looks. Takes no input and no focus. Everything is drawn into an off-screen
/// surface and shown with one copy, so frequent values do not flicker.
class XP_ProgressBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(quint32 Color READ color WRITE setColor)
    Q_PROPERTY(int BrushStyle READ brushStyle WRITE setBrushStyle)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(QPixmap Image READ image WRITE setImage)
    Q_PROPERTY(int Max READ max WRITE setMax)
    Q_PROPERTY(int Min READ min WRITE setMin)
    Q_PROPERTY(int Orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(int Scrolling READ scrolling WRITE setScrolling)
    Q_PROPERTY(bool ShowText READ showText WRITE setShowText)
    Q_PROPERTY(int Value READ value WRITE setValue)
    Q_PROPERTY(qulonglong hwnd READ hwnd)
    Q_PROPERTY(QImage hdc READ hdc)

public:
    explicit XP_ProgressBar(QWidget* parent = nullptr);

    [[nodiscard]] ColorValue color() const { return m_state.color; }
    void setColor(ColorValue color);

    /// Hatch of look 7: 0 horizontal, 1 vertical, 2 downward diagonal, 3 upward diagonal, 4 cross,
    /// 5 diagonal cross. Any other number fills solid.
    [[nodiscard]] int brushStyle() const { return m_state.brushStyle; }
    void setBrushStyle(int style);

    /// Pattern of look 8; without one that look is an empty frame.
    [[nodiscard]] QPixmap image() const { return m_image; }
    void setImage(const QPixmap& image);

    /// Max and Min scale only what value() answers; they never scale what is set or drawn.
    [[nodiscard]] int max() const { return m_state.max; }
    void setMax(int max);
    [[nodiscard]] int min() const { return m_state.min; }
    void setMin(int min);

    /// 0 horizontal, 1 vertical (fills from the bottom); other numbers change nothing.
    [[nodiscard]] int orientation() const { return m_state.vertical ? 1 : 0; }
    void setOrientation(int orientation);

    /// The look, see design::progresslook.
    [[nodiscard]] int scrolling() const { return m_state.scrolling; }
    void setScrolling(int look);

    [[nodiscard]] bool showText() const { return m_state.showText; }
    void setShowText(bool show);

    /// The percentage, whatever Max is: 100 and above is full, 0 and below is empty.
    void setValue(int percent);
    /// See ProgressState::value(): the percentage of Max.
    [[nodiscard]] int value() const { return m_state.value(); }
    /// The percentage shown, 0 to 100.
    [[nodiscard]] int percent() const { return qBound(0, m_state.percent(), 100); }

    /// Window system id of the window that shows the bar, 0 while there is none.
    [[nodiscard]] qulonglong hwnd() const { return effectiveWinId(); }
    /// The off-screen surface, up to date; null while the control has no size.
    [[nodiscard]] QImage hdc();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void redraw();
    void pDraw();

    ProgressState m_state;
    QPixmap m_image;
    QImage m_surface;
    bool m_drawn = false; ///< the surface shows the state
};

} // namespace varnhold
