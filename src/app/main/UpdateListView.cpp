#include "app/main/UpdateListView.h"

#include "app/main/PackageIcons.h"
#include "controls/Contrast.h"
#include "controls/SystemColorsUi.h"
#include "lookup/UpdateList.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace varnhold {

namespace {

constexpr int rowHeight = 18;
constexpr int iconSide = 16;
constexpr int cellGap = 6;

/// A locked list stays on screen for minutes, and is read.
void toneDown(QPalette& palette)
{
    constexpr double share = 0.4;
    constexpr double readable = 4.5;
    const auto tone = [&palette](QPalette::ColorRole ink, QPalette::ColorRole ground, double ratio) {
        const ColorValue grounds[] = {toColorValue(palette.color(QPalette::Disabled, ground))};
        const ColorValue from = toColorValue(palette.color(QPalette::Active, ink));
        palette.setColor(QPalette::Disabled, ink, toQColor(tonedDown(from, grounds, share, ratio)));
    };
    tone(QPalette::Highlight, QPalette::Base, 1);
    tone(QPalette::HighlightedText, QPalette::Highlight, readable);
    tone(QPalette::Text, QPalette::Base, readable);
}

/// Shows the icon that the list names by a key.
class IconDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width() + cellGap, rowHeight};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state.setFlag(QStyle::State_HasFocus, false); // the whole row shows it
        if (!option->state.testFlag(QStyle::State_Enabled))
            toneDown(option->palette);
        const QString key = index.data(UpdateList::IconKeyRole).toString();
        if (key.isEmpty())
            return;
        option->icon = packageIcon(key);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = QSize(iconSide, iconSide);
    }
};

} // namespace

UpdateListView::UpdateListView(UpdateList& list, QWidget* parent) : QTreeView(parent)
{
    setModel(&list);
    setItemDelegate(new IconDelegate(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setItemsExpandable(false);
    setSortingEnabled(false);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setIconSize(QSize(iconSide, iconSide));
    setHorizontalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    setMouseTracking(true);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void UpdateListView::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    viewport()->update();
}

void UpdateListView::setPictureAlignment(int alignment)
{
    m_pictureAlignment = alignment;
    viewport()->update();
}

void UpdateListView::drawPicture(QPainter& painter) const
{
    constexpr int tiled = 5;
    const QRect all = viewport()->rect();
    if (m_pictureAlignment == tiled) {
        painter.drawTiledPixmap(all, m_picture);
        return;
    }
    constexpr Qt::Alignment places[] = {Qt::AlignTop | Qt::AlignLeft, Qt::AlignTop | Qt::AlignRight,
                                        Qt::AlignBottom | Qt::AlignLeft, Qt::AlignBottom | Qt::AlignRight,
                                        Qt::AlignCenter};
    const Qt::Alignment place = places[qBound(0, m_pictureAlignment, 4)];
    const QRect at = QStyle::alignedRect(Qt::LeftToRight, place, m_picture.size(), all);
    painter.drawPixmap(at.topLeft(), m_picture);
}

void UpdateListView::paintEvent(QPaintEvent* event)
{
    if (!m_picture.isNull()) {
        QPainter painter(viewport());
        constexpr qreal locked = 0.35;
        painter.setOpacity(isEnabled() ? 1 : locked);
        drawPicture(painter);
    }
    QTreeView::paintEvent(event);
}

void UpdateListView::autosizeColumns()
{
    const int columns = header()->count();
    for (int column = 0; column < columns; ++column)
        resizeColumnToContents(column);
}

void UpdateListView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    // A row is chosen, not a cell: the columns in view stay where the user has put them.
    const int left = horizontalScrollBar()->value();
    QTreeView::scrollTo(index, hint);
    horizontalScrollBar()->setValue(left);
}

int UpdateListView::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? 0 : rows.front().row() + 1;
}

int UpdateListView::rowAt(const QPoint& position) const
{
    const QModelIndex index = indexAt(position);
    return index.isValid() ? index.row() + 1 : 0;
}

QRect UpdateListView::partOf(const QModelIndex& index, QStyle::SubElement part) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    option.index = index;
    option.features |= QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasDisplay;
    if (index.data(Qt::CheckStateRole).isValid())
        option.features |= QStyleOptionViewItem::HasCheckIndicator;
    option.decorationSize = QSize(iconSide, iconSide);
    option.text = index.data().toString();
    return style()->subElementRect(part, &option, this);
}

/// Two quick clicks on a check box toggle it twice and are no double click of the row.
bool UpdateListView::isOnCheckBox(const QPoint& position) const
{
    const QModelIndex index = indexAt(position);
    return index.flags().testFlag(Qt::ItemIsUserCheckable) && index.data(Qt::CheckStateRole).isValid() &&
           partOf(index, QStyle::SE_ItemViewItemCheckIndicator).contains(position);
}

bool UpdateListView::isOnIcon(const QPoint& position) const
{
    const QModelIndex index = indexAt(position);
    return index.isValid() && index.column() == 0 &&
           partOf(index, QStyle::SE_ItemViewItemDecoration).contains(position);
}

void UpdateListView::mousePressEvent(QMouseEvent* event)
{
    QTreeView::mousePressEvent(event);
    Q_EMIT buttonPressed();
}

void UpdateListView::mouseMoveEvent(QMouseEvent* event)
{
    QTreeView::mouseMoveEvent(event);
    const QPoint position = event->position().toPoint();
    Q_EMIT rowHovered(rowAt(position), isOnIcon(position));
}

void UpdateListView::mouseReleaseEvent(QMouseEvent* event)
{
    QTreeView::mouseReleaseEvent(event);
    Q_EMIT buttonReleased();
    if (event->button() == Qt::RightButton)
        Q_EMIT menuWanted(event->globalPosition().toPoint());
}

void UpdateListView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && !isOnCheckBox(event->position().toPoint()))
        Q_EMIT rowActivated(selectedRow());
}

void UpdateListView::leaveEvent(QEvent* event)
{
    QTreeView::leaveEvent(event);
    Q_EMIT rowHovered(0, false);
}

void UpdateListView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT rowActivated(selectedRow());
        return;
    }
    // The first step chooses the first row; the toolkit takes that for chosen as soon as the focus is here.
    constexpr int steps[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home};
    const QModelIndex first = model()->index(0, 0);
    if (first.isValid() && !selectionModel()->hasSelection() && std::ranges::count(steps, event->key()) > 0) {
        setCurrentIndex(first);
        return;
    }
    QTreeView::keyPressEvent(event);
}

void UpdateListView::contextMenuEvent(QContextMenuEvent* event)
{
    // The mouse opens the menu on release; what comes here by key opens it at the selected row.
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

} // namespace varnhold
