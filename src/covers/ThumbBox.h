#pragma once

#include "covers/FittedPicture.h"

#include <QWidget>

namespace varnhold {

/// One image of the thumbnail window.
class ThumbBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap Picture READ picture WRITE setPicture)

public:
    explicit ThumbBox(QWidget* parent);

    [[nodiscard]] const QPixmap& picture() const { return m_picture.picture(); }
    void setPicture(const QPixmap& picture);

Q_SIGNALS:
    /// Double click; the box may be gone when this returns.
    void doubleClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    FittedPicture m_picture{FittedPicture::Larger::No};
};

} // namespace varnhold
