#pragma once

#include <QTreeView>

namespace varnhold {

class UpdateList;

/// ListView1: the update list on screen. Row numbers count from 1.
class UpdateListView : public QTreeView
{
    Q_OBJECT
    Q_PROPERTY(QPixmap Picture READ picture WRITE setPicture)
    Q_PROPERTY(int PictureAlignment READ pictureAlignment WRITE setPictureAlignment)

public:
    UpdateListView(UpdateList& list, QWidget* parent);

    /// Each column becomes as wide as its widest text, header included. Long lists are measured by a sample
    /// of their rows.
    void autosizeColumns();
    [[nodiscard]] const QPixmap& picture() const { return m_picture; }
    void setPicture(const QPixmap& picture); ///< below the rows
    [[nodiscard]] int pictureAlignment() const { return m_pictureAlignment; }
    /// 0 top left, 1 top right, 2 bottom left, 3 bottom right, 4 centre, 5 tiled.
    void setPictureAlignment(int alignment);
    /// Selected row; 0 when none.
    [[nodiscard]] int selectedRow() const;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    /// On each move of the pointer; 0: no row below it. `onIcon`: over the row's small icon.
    void rowHovered(int row, bool onIcon);
    void buttonPressed();
    void buttonReleased();
    void menuWanted(const QPoint& globalPosition); ///< right button, after buttonReleased()
    void rowActivated(int row);                    ///< double click or Enter; 0: no row

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    [[nodiscard]] int rowAt(const QPoint& position) const;
    [[nodiscard]] QRect partOf(const QModelIndex& index, QStyle::SubElement part) const;
    [[nodiscard]] bool isOnCheckBox(const QPoint& position) const;
    [[nodiscard]] bool isOnIcon(const QPoint& position) const;
    void drawPicture(QPainter& painter) const;

    QPixmap m_picture;
    int m_pictureAlignment = 5;
};

} // namespace varnhold
