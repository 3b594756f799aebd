#pragma once

#include "covers/FittedPicture.h"

#include <QWidget>

#include <functional>

namespace varnhold {

/// A cover, as large as the control lets it be with its proportions kept. It answers to the mouse as a button
/// does, and to Space, Enter and the menu key.
class CoverBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap Picture READ picture WRITE setPicture)

public:
    explicit CoverBox(QWidget* parent = nullptr);

    /// Reads a picture, scaled down to fit in `most` unless that is empty; null when there is none.
    using Reader = std::function<QImage(const QSize& most)>;

    [[nodiscard]] const QPixmap& picture() const
    {
        return m_picture.picture();
    } ///< as it is held to be shown
    void setPicture(const QPixmap& picture);
    /// Reads no more of the picture than the control's width shows, which is several times as fast. False,
    /// and nothing is changed, when it is no picture.
    bool setPictureFrom(Reader read);
    /// In its own size, read again if need be.
    [[nodiscard]] QPixmap wholePicture() const;

Q_SIGNALS:
    void activated(); ///< left button up, Space or Enter
    void menuWanted(const QPoint& globalPosition);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    FittedPicture m_picture{FittedPicture::Larger::Yes};
    Reader m_read; ///< of the whole picture, unless m_picture is that
};

} // namespace varnhold
