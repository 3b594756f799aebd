#pragma once

#include "controls/SystemColors.h"
#include "controls/ucSlider/SliderState.h"

#include <QPixmap>
#include <QWidget>

namespace varnhold {

/// A rail with a picture knob. Values grow to the right, or downwards when vertical (the default).
class ucSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(quint32 BackColor READ backColor WRITE setBackColor)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(QPixmap MouseIcon READ mouseIcon WRITE setMouseIcon)
    Q_PROPERTY(int MousePointer READ mousePointer WRITE setMousePointer)
    Q_PROPERTY(int Max READ max WRITE setMax)
    Q_PROPERTY(int Min READ min WRITE setMin)
    Q_PROPERTY(int Orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(int RailStyle READ railStyle WRITE setRailStyle)
    Q_PROPERTY(QPixmap RailPicture READ railPicture WRITE setRailPicture)
    Q_PROPERTY(bool ShowValueTip READ showValueTip WRITE setShowValueTip)
    Q_PROPERTY(QPixmap SliderIcon READ sliderIcon WRITE setSliderIcon)
    Q_PROPERTY(int Value READ value WRITE tryValue)

public:
    explicit ucSlider(QWidget* parent = nullptr);

    [[nodiscard]] ColorValue backColor() const { return m_backColor; }
    void setBackColor(ColorValue color);

    /// The pointer over the control when MousePointer is 99.
    [[nodiscard]] QPixmap mouseIcon() const { return m_mouseIcon; }
    void setMouseIcon(const QPixmap& icon);
    /// See applyMousePointer(); 0 is the default pointer.
    [[nodiscard]] int mousePointer() const { return m_mousePointer; }
    void setMousePointer(int pointer);

    [[nodiscard]] int max() const { return m_state.max(); }
    void setMax(int max);
    [[nodiscard]] int min() const { return m_state.min(); }
    void setMin(int min);

    /// 0: the rail runs along the width, 1: along the height; other numbers change nothing.
    [[nodiscard]] int orientation() const { return m_state.vertical() ? 1 : 0; }
    void setOrientation(int orientation);

    /// 0 to 4: a sunken, raised, etched, bump or flat edge. 99: the rail is RailPicture. Any other number
    /// is drawn as 0.
    [[nodiscard]] int railStyle() const { return m_railStyle; }
    void setRailStyle(int style);
    [[nodiscard]] QPixmap railPicture() const { return m_railPicture; }
    void setRailPicture(const QPixmap& picture);

    /// Whether the value is shown beside the knob while it is dragged.
    [[nodiscard]] bool showValueTip() const { return m_showValueTip; }
    void setShowValueTip(bool show);

    /// The knob; a null picture brings back the knob that the control draws itself.
    [[nodiscard]] QPixmap sliderIcon() const { return m_sliderIcon; }
    void setSliderIcon(const QPixmap& icon);

    [[nodiscard]] int value() const { return m_state.value(); }
    /// Throws RunTimeError 380 and keeps the old value when outside Min to Max. Raises no event.
    void setValue(int value);
    /// The same for the property system and assistive tools, which no exception may cross: a value out of
    /// range is left without effect.
    void tryValue(int value);

    /// A step by the user, also of keys, wheel and assistive tools: limited to Min and Max, and raises
    /// Change if it moves.
    void step(qint64 units);

    /// The control itself takes the size that SliderMetrics tells; windows place it and give the long side.
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void Click();                                          ///< event 1
    void KeyDown(int key, Qt::KeyboardModifiers shift);    ///< event 5: a key went down on the control
    void MouseUp(Qt::MouseButton button, QPoint position); ///< event 6: any release, logical pixels
    void Change(); ///< event 7: the user pressed, moved or keyed the knob; comes on a still press too

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] QSize knobSize() const;
    [[nodiscard]] QSize railSize() const;
    void layOut();
    void tellValue();
    void showTip();
    void endDrag();

    SliderState m_state;
    QPixmap m_sliderIcon;
    QPixmap m_railPicture;
    QPixmap m_mouseIcon;
    ColorValue m_backColor = systemcolors::buttonFace;
    int m_railStyle = 0;
    int m_mousePointer = 0;
    bool m_showValueTip = true;
    bool m_keyboardFocus = false; ///< has the focus by keyboard, so that it is shown
    int m_wheel = 0;              ///< turn of the wheel that is not yet a whole notch
    QSize m_askedSize;            ///< as last set from outside
    QSize m_ownSize;              ///< what the control made of it
};

} // namespace varnhold
