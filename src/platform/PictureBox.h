#pragma once

#include <QPixmap>
#include <QWidget>

namespace varnhold {

/// A part of a window with a picture for its ground, drawn at its corner in the picture's own size. Holds
/// other controls, or serves as a bar.
class PictureBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap Picture READ picture WRITE setPicture)

public:
    using QWidget::QWidget;

    [[nodiscard]] const QPixmap& picture() const { return m_picture; }
    void setPicture(const QPixmap& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
};

} // namespace varnhold
