#include "tools/LinksView.h"

#include "tools/LinkRows.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace varnhold {

namespace {

constexpr int rowHeight = 18;
constexpr int iconSide = 16;
constexpr int cellGap = 6;

/// Shows the picture that a cell names by a key.
class PictureDelegate : public QStyledItemDelegate
{
public:
    PictureDelegate(LinksView::PictureOf pictureOf, QObject* parent)
        : QStyledItemDelegate(parent), m_pictureOf(std::move(pictureOf))
    {
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width() + cellGap, rowHeight};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state.setFlag(QStyle::State_HasFocus, false); // the whole row shows it
        option->icon = m_pictureOf(index.data(LinkRows::IconKeyRole).toString());
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = QSize(iconSide, iconSide);
    }

private:
    LinksView::PictureOf m_pictureOf;
};

} // namespace

LinksView::LinksView(LinkRows& rows, PictureOf pictureOf, QWidget* parent) : QTreeView(parent), m_rows(rows)
{
    setModel(&rows);
    setItemDelegate(new PictureDelegate(std::move(pictureOf), this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setItemsExpandable(false);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setIconSize(QSize(iconSide, iconSide));
    setHorizontalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    setMouseTracking(true);
    QFont font = this->font();
    font.setFamilies({QStringLiteral("Arial Unicode MS"), font.family()});
    setFont(font);
    header()->setStretchLastSection(true);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(header(), &QHeaderView::sectionClicked, this, &LinksView::clickColumn);
}

void LinksView::clickColumn(int column)
{
    m_rows.clickColumn(column);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(m_rows.sortColumn(), m_rows.sortOrder());
}

int LinksView::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void LinksView::autosizeColumns()
{
    constexpr int widest = 420;
    for (int column = 0; column < LinkRow::Count; ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, std::min(columnWidth(column), widest));
    }
}

void LinksView::mouseMoveEvent(QMouseEvent* event)
{
    QTreeView::mouseMoveEvent(event);
    Q_EMIT rowHovered(indexAt(event->position().toPoint()).row());
}

void LinksView::mouseReleaseEvent(QMouseEvent* event)
{
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton)
        Q_EMIT menuWanted(event->globalPosition().toPoint());
}

void LinksView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTreeView::mouseDoubleClickEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid())
        Q_EMIT rowActivated(index.row());
}

void LinksView::leaveEvent(QEvent* event)
{
    QTreeView::leaveEvent(event);
    Q_EMIT rowHovered(-1);
}

void LinksView::keyPressEvent(QKeyEvent* event)
{
    const int row = selectedRow();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (row >= 0)
            Q_EMIT rowActivated(row);
    } else if (event->key() == Qt::Key_Delete) {
        if (row >= 0)
            Q_EMIT deleteWanted();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void LinksView::contextMenuEvent(QContextMenuEvent* event)
{
    // The mouse opens the menu on release; what comes here by key opens it at the selected row.
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

} // namespace varnhold
