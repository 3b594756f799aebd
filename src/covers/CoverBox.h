#pragma once

#include <QPixmap>
#include <QWidget>

namespace varnhold {

/// A cover, as large as the control lets it be with its proportions kept. It answers to the mouse as a button
/// does, and to Space, Enter and the menu key.
class CoverBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap Picture READ picture WRITE setPicture)

public:
    explicit CoverBox(QWidget* parent = nullptr);

    [[nodiscard]] const QPixmap& picture() const { return m_picture; } ///< in its own size
    void setPicture(const QPixmap& picture);

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
    QPixmap m_picture;
    QPixmap m_shown; ///< scaled for the size that was painted last
};

} // namespace varnhold
