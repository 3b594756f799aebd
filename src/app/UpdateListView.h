#pragma once

#include <QTreeView>

namespace varnhold {

class UpdateList;

/// ListView1: the update list on screen. Row numbers count from 1.
class UpdateListView : public QTreeView
{
    Q_OBJECT

public:
    UpdateListView(UpdateList& list, QWidget* parent);

    /// Each column becomes as wide as its widest text, header included. Long lists are measured by a sample
    /// of their rows.
    void autosizeColumns();
    /// Selected row; 0 when none.
    [[nodiscard]] int selectedRow() const;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    void rowHovered(int row); ///< on each move of the pointer; 0: no row below it
    void buttonPressed();
    void buttonReleased();
    void menuWanted(const QPoint& globalPosition); ///< right button, after buttonReleased()
    void rowActivated(int row);                    ///< double click or Enter; 0: no row

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    [[nodiscard]] int rowAt(const QPoint& position) const;
};

} // namespace varnhold
