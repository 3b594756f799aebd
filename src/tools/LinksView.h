#pragma once

#include <QTreeView>

#include <functional>

namespace varnhold {

class LinkRows;

/// lstVwLinks: saved links as a table. Rows count from 0, -1 is none.
class LinksView : public QTreeView
{
    Q_OBJECT

public:
    /// The small picture that a key of the rows stands for.
    using PictureOf = std::function<QIcon(const QString& key)>;

    LinksView(LinkRows& rows, PictureOf pictureOf, QWidget* parent = nullptr);

    [[nodiscard]] int selectedRow() const;
    void autosizeColumns();

Q_SIGNALS:
    void rowHovered(int row); ///< on each move of the pointer
    void menuWanted(const QPoint& globalPosition);
    void rowActivated(int row); ///< double click or Enter
    void deleteWanted();        ///< Delete

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void clickColumn(int column);

    LinkRows& m_rows;
};

} // namespace varnhold
