#pragma once

#include <QPixmap>
#include <QRegion>
#include <QWidget>

namespace varnhold {

/// A window without the desktop's frame: a picture for a background and an outline cut to a shape.
class ShapedWindow : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap Picture READ picture WRITE setPicture)

public:
    /// `owner`: the window that this one stays above; null for none.
    explicit ShapedWindow(QWidget* owner, Qt::WindowFlags extra = {});

    [[nodiscard]] const QPixmap& picture() const { return m_picture; }
    /// Drawn at the window's corner in its own size.
    void setPicture(const QPixmap& picture);
    /// Cuts the window to a shape; an empty one leaves it whole.
    void setShape(const QRegion& shape);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
    QRegion m_shape; ///< where a platform cuts no windows; empty: not cut
};

/// Keeps a window above all others, or no longer.
void SetTopMost(QWidget& window);
void ClearTopMost(QWidget& window);

/// Opacity 0 to 255; kept at 20 or above, so that no window becomes invisible through a setting.
void SetOpacity(int value, QWidget& window);
/// Opacity 0 to 255 without that floor; at once on the screen, with no event handled meanwhile.
void SetFadeOpacity(int value, QWidget& window);

} // namespace varnhold
