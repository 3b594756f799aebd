#include "controls/MorphListBox/MorphListBox.h"

#include "controls/MorphListBox/MorphListAccessible.h"
#include "controls/MorphListBox/MorphListBackground.h"

#include <QAccessible>
#include <QBitmap>
#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

namespace varnhold {

MorphListBox::MorphListBox(QWidget* parent) : QWidget(parent), m_model(std::make_unique<MorphListModel>())
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    installMorphListAccessibility();
    lookChanged();
}

MorphListBox::~MorphListBox() = default;

void MorphListBox::RemoveItem(int index)
{
    m_model->RemoveItem(index);
    repaintDirty();
}

void MorphListBox::Clear()
{
    m_model->Clear();
    repaintDirty();
}

void MorphListBox::ClearOrSelect()
{
    m_model->ClearOrSelect();
    repaintDirty();
}

void MorphListBox::AddImage(const QPixmap& picture)
{
    if (!Enabled())
        return;
    m_look.images.append(picture);
    lookChanged();
}

void MorphListBox::Sort(bool descending)
{
    m_model->Sort(descending);
    repaintDirty();
}

void MorphListBox::ReverseStringArray()
{
    m_model->ReverseStringArray();
    repaintDirty();
}

int MorphListBox::FindIndex(const QString& text, bool matchCase) const
{
    return m_model->FindIndex(text, matchCase);
}

void MorphListBox::DisplayFrom(int index)
{
    m_model->DisplayFrom(index);
    repaintDirty();
}

int MorphListBox::MouseOverIndex(int y) const
{
    return m_model->MouseOverIndex(y);
}

bool MorphListBox::isRowsZone(const QPoint& position) const
{
    return m_model->metrics().zoneAt(position) == HitZone::Rows;
}

void MorphListBox::Refresh()
{
    lookChanged();
}

QString MorphListBox::List(int index) const
{
    return m_model->text(index);
}

void MorphListBox::setList(int index, const QString& text)
{
    m_model->setText(index, text);
    repaintDirty();
}

qint32 MorphListBox::ItemData(int index) const
{
    return m_model->itemData(index);
}

void MorphListBox::setItemData(int index, qint32 value)
{
    m_model->setItemData(index, value);
}

bool MorphListBox::Selected(int index) const
{
    return m_model->selected(index);
}

void MorphListBox::setSelected(int index, bool selected)
{
    m_model->setSelected(index, selected);
    repaintDirty();
}

int MorphListBox::ImageIndex(int index) const
{
    return m_model->imageIndex(index);
}

void MorphListBox::setImageIndex(int index, int image)
{
    m_model->setImageIndex(index, image);
    repaintDirty();
}

void MorphListBox::setTheme(int theme)
{
    m_theme = theme;
    if (!applyMorphTheme(theme, m_look.design))
        return;
    m_look.CheckStyle = 1;
    m_look.ShowSelectRect = true;
    m_model->setMultiSelect(SelectMode::Single);
    m_model->setCheckList(false);
    lookChanged();
}

int MorphListBox::Style() const
{
    return int(m_model->checkList());
}

void MorphListBox::setStyle(int style)
{
    m_model->setCheckList(style == 1);
    lookChanged();
}

void MorphListBox::setCheckStyle(int style)
{
    m_look.CheckStyle = style;
    lookChanged();
}

int MorphListBox::MultiSelect() const
{
    return int(m_model->multiSelect());
}

void MorphListBox::setMultiSelect(int mode)
{
    m_model->setMultiSelect(SelectMode(qBound(0, mode, 2)));
    repaintDirty();
}

bool MorphListBox::Sorted() const
{
    return m_model->sorted();
}

void MorphListBox::setSorted(bool sorted)
{
    m_model->setSorted(sorted);
}

bool MorphListBox::SortAsNumeric() const
{
    return m_model->sortAsNumeric();
}

void MorphListBox::setSortAsNumeric(bool numeric)
{
    m_model->setSortAsNumeric(numeric);
}

void MorphListBox::setShowItemImages(bool show)
{
    m_look.ShowItemImages = show;
    lookChanged();
}

void MorphListBox::setItemImageSize(int size)
{
    m_look.ItemImageSize = qBound(0, size, 1000);
    lookChanged();
}

void MorphListBox::setShowSelectRect(bool show)
{
    m_look.ShowSelectRect = show;
    lookChanged();
}

int MorphListBox::DblClickBehavior() const
{
    return m_model->dblClickBehavior;
}

void MorphListBox::setDblClickBehavior(int behavior)
{
    m_model->dblClickBehavior = behavior;
}

bool MorphListBox::DragEnabled() const
{
    return m_model->dragEnabled;
}

void MorphListBox::setDragEnabled(bool enabled)
{
    m_model->dragEnabled = enabled;
}

bool MorphListBox::Enabled() const
{
    return m_model->enabled();
}

void MorphListBox::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
    m_model->setEnabled(enabled);
    lookChanged();
}

void MorphListBox::setRedrawFlag(bool redraw)
{
    if (m_redraw && !redraw && isVisible() && !size().isEmpty()) {
        // Whatever uncovers the list meanwhile shows it as it was.
        m_held = QPixmap(size() * devicePixelRatioF());
        m_held.setDevicePixelRatio(devicePixelRatioF());
        m_held.fill(Qt::transparent);
        QPainter painter(&m_held);
        m_painter.paint(painter, rect(), rect(), *m_model, m_look);
    }
    m_redraw = redraw;
    if (!redraw)
        return;
    m_held = {};
    repaintDirty();
    lookChanged();
}

void MorphListBox::setRightToLeft(bool rightToLeft)
{
    m_look.RightToLeft = rightToLeft;
    lookChanged();
}

void MorphListBox::setReadableText(bool readable)
{
    m_look.ReadableText = readable;
    lookChanged();
}

int MorphListBox::NewIndex() const
{
    return m_model->newIndex();
}

void MorphListBox::setNewIndex(int index)
{
    m_model->setNewIndex(index);
}

int MorphListBox::TopIndex() const
{
    return m_model->topIndex();
}

void MorphListBox::setTopIndex(int index)
{
    m_model->setTopIndex(index);
    repaintDirty();
}

int MorphListBox::ListIndex() const
{
    return m_model->listIndex();
}

void MorphListBox::setListIndex(int index)
{
    m_model->setListIndex(index);
    repaintDirty();
}

int MorphListBox::ListCount() const
{
    return m_model->count();
}

int MorphListBox::SelCount() const
{
    return m_model->selectedCount();
}

QString MorphListBox::Text() const
{
    return m_model->text(m_model->listIndex());
}

void MorphListBox::setPicture(const QPixmap& picture)
{
    m_look.Picture = picture;
    lookChanged();
}

void MorphListBox::setPictureMode(int mode)
{
    m_look.PictureMode = mode;
    lookChanged();
}

void MorphListBox::setDisPicture(const QPixmap& picture)
{
    m_look.DisPicture = picture;
    lookChanged();
}

void MorphListBox::setDisPictureMode(int mode)
{
    m_look.DisPictureMode = mode;
    lookChanged();
}

QSize MorphListBox::sizeHint() const
{
    return MorphListMetrics::sizeFor(measured(), 10, 14 * fontMetrics().averageCharWidth());
}

QSize MorphListBox::minimumSizeHint() const
{
    return {0, 0};
}

void MorphListBox::paintEvent(QPaintEvent* event)
{
    m_repaintDue = false;
    QPainter painter(this);
    if (m_redraw)
        m_painter.paint(painter, rect(), event->region(), *m_model, m_look);
    else if (!m_held.isNull())
        painter.drawPixmap(0, 0, m_held);
    else
        painter.fillRect(rect(), palette().window());
}

void MorphListBox::lookChanged()
{
    m_look.font = font();
    m_look.enabled = isEnabled();
    m_model->setMeasure(measured());
    shape();
    m_painter.forget();
    if (m_redraw)
        update();
}

MorphListMeasure MorphListBox::measured() const
{
    MorphListMeasure measure;
    measure.ScaleWidth = width();
    measure.ScaleHeight = height();
    measure.fontHeight = fontMetrics().height();
    measure.BorderWidth = m_look.design.BorderWidth;
    measure.ItemImageSize = m_look.ItemImageSize;
    measure.ShowItemImages = m_look.ShowItemImages;
    measure.RightToLeft = m_look.RightToLeft;
    measure.scrollBarWidth = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    measure.thumbMinimum = style()->pixelMetric(QStyle::PM_ScrollBarSliderMin, nullptr, this);
    return measure;
}

void MorphListBox::shape()
{
    if (!isCurved(m_look.design) || size().isEmpty()) {
        if (!mask().isEmpty())
            clearMask();
        return;
    }
    QBitmap shown(size());
    shown.clear();
    QPainter painter(&shown);
    painter.fillPath(morphOutline(size(), m_look.design, 0, 1), Qt::color1);
    painter.end();
    setMask(shown);
}

void MorphListBox::repaintDirty()
{
    if (!m_redraw)
        return;
    const MorphListDirty dirty = m_model->takeDirty();
    if (dirty.all) {
        // Telling the window system once is enough: in a bulk fill it costs more than the row.
        if (!std::exchange(m_repaintDue, true))
            update();
    } else {
        const MorphListMetrics& metrics = m_model->metrics();
        for (const int row : dirty.rows) {
            if (row >= m_model->topIndex() && row <= m_model->lastVisible())
                update(metrics.row(row - m_model->topIndex()));
        }
        if (dirty.scrollBar)
            update(metrics.bar());
    }
    if (QAccessible::isActive())
        tellAssistiveTools(dirty.items);
}

void MorphListBox::tellAssistiveTools(bool itemsChanged)
{
    if (itemsChanged)
        announceMorphListItems(this);
    const int row = m_model->listIndex();
    if (!itemsChanged && row == m_toldRow)
        return;
    m_toldRow = row;
    announceMorphListRow(this, row);
}

void MorphListBox::activateRow(int index)
{
    deliver(m_model->activate(index));
}

QRect MorphListBox::rowRect(int index) const
{
    const int visible = index - m_model->topIndex();
    return visible >= 0 && index <= m_model->lastVisible() ? m_model->metrics().row(visible) : QRect();
}

} // namespace varnhold
