#include "covers/frmThumbs.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "covers/ThumbBox.h"
#include "platform/CaptionDrag.h"
#include "platform/ElidedLabel.h"
#include "platform/HandCursors.h"
#include "platform/PictureBox.h"
#include "platform/ToolTipText.h"
#include "platform/Wayland.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <chrono>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

// The skins draw the frames of the images into the window's picture.
constexpr QSize windowSize{447, 221};
constexpr std::array<QRect, 3> thumbPlaces = {QRect{27, 67, 104, 119}, QRect{154, 27, 139, 159},
                                              QRect{316, 67, 104, 119}};
constexpr QRect barPlace{8, 193, 431, 22};
constexpr QRect scrollPlace{4, 4, 423, 14};
constexpr int pageStep = 3;
constexpr std::chrono::milliseconds mousePeriod{100};
constexpr qsizetype idLength = 9;

} // namespace

frmThumbs::frmThumbs(const Services& services, QWidget* owner)
    : ShapedWindow(owner), m_services(services), m_pages(m_services.list, m_services.folder)
{
    setObjectName("frmThumbs"_L1);
    setWindowTitle(tr("Thumbnails"));
    setFixedSize(windowSize);
    setFocusPolicy(Qt::StrongFocus);
    build();
    load();
    m_services.skin(*this);
}

void frmThumbs::build()
{
    m_caption = new ElidedLabel(this);
    m_caption->setObjectName("lblCaption"_L1);
    m_caption->setGeometry(8, 3, windowSize.width() - 40, 16);
    auto* close = new ButtonEx(this);
    close->setObjectName("btn_WinState(1)"_L1);
    close->setCaption({});
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close"));
    close->setGeometry(windowSize.width() - 22, 4, 14, 14);
    close->setCancel(true);
    close->setCursor(Qt::ArrowCursor);
    connect(close, &ButtonEx::Click, this, &QWidget::close);
    buildThumbs();
    buildBar();
    makeDraggable();
    m_mouse.setInterval(mousePeriod);
    m_later.setSingleShot(true);
    connect(&m_mouse, &QTimer::timeout, this, &frmThumbs::tmr_Mouse_Timer);
    connect(&m_later, &QTimer::timeout, this, &frmThumbs::showPictures);
}

void frmThumbs::buildThumbs()
{
    for (std::size_t i = 0; i < m_thumbs.size(); ++i) {
        auto* thumb = new ThumbBox(this);
        thumb->setObjectName(u"Thumb(%1)"_s.arg(i));
        thumb->setGeometry(thumbPlaces.at(i));
        thumb->setPicture(m_services.blank);
        m_thumbs.at(i) = thumb;
    }
    connect(m_thumbs[1], &ThumbBox::doubleClicked, this, &frmThumbs::choose);
}

void frmThumbs::buildBar()
{
    m_picBar = new PictureBox(this);
    m_picBar->setObjectName("picBar"_L1);
    m_picBar->setGeometry(barPlace);
    m_picBar->setCursor(Qt::ArrowCursor);
    m_picBar->hide();
    m_bar = new QScrollBar(Qt::Horizontal, m_picBar);
    m_bar->setObjectName("HScroll1"_L1);
    m_bar->setAccessibleName(tr("Games"));
    m_bar->setGeometry(scrollPlace);
    m_bar->setPageStep(pageStep);
    connect(m_bar, &QScrollBar::valueChanged, this, &frmThumbs::HScroll1_Change);
    if (!onWayland())
        return;
    // Where the pointer's place is not told, its coming and going is: over the bar's place and the bar.
    auto* place = new QWidget(this);
    place->setGeometry(barPlace);
    place->installEventFilter(this);
    m_picBar->installEventFilter(this);
    m_picBar->raise();
}

void frmThumbs::makeDraggable()
{
    auto* drag =
        new CaptionDrag(*this, m_services.screen,
                        {.store = {},
                         .snaps = [this] { return m_services.settings.isChecked(Check::Edge); },
                         .keepWorkArea = [this](const WorkArea& area) { m_services.state.workArea = area; }});
    for (QWidget* const handle :
         {static_cast<QWidget*>(this), static_cast<QWidget*>(m_caption), static_cast<QWidget*>(m_thumbs[0]),
          static_cast<QWidget*>(m_thumbs[1]), static_cast<QWidget*>(m_thumbs[2])}) {
        drag->addHandle(*handle);
        handle->installEventFilter(this); // of the other buttons, and so asked first
    }
}

/// Load_selected or Load_Unselected.
void frmThumbs::load()
{
    m_bar->setRange(0, m_pages.maximum());
    const int first = m_pages.firstIndex();
    if (m_bar->value() == first)
        HScroll1_Change();
    else
        m_bar->setValue(first); // which comes to the same
}

void frmThumbs::HScroll1_Change()
{
    showPage(m_pages.page(m_bar->value()));
    // A drag asks for more places than can be read: the newest counts, when nothing else waits.
    if (m_bar->isSliderDown())
        m_later.start(0);
    else
        showPictures();
}

void frmThumbs::showPage(const ThumbPage& page)
{
    m_page = page;
    m_caption->setText(page.caption);
    m_caption->setToolTip(toolTipText(page.caption));
    for (std::size_t i = 0; i < m_thumbs.size(); ++i) {
        const QString& label = page.images.at(i).toolTip;
        m_thumbs.at(i)->setToolTip(toolTipText(label));
        m_thumbs.at(i)->setAccessibleName(label.isEmpty() ? tr("No game") : label);
    }
}

void frmThumbs::showPictures()
{
    m_later.stop();
    // All are read for the largest frame: a neighbour becomes the centre by one step.
    const QSize most = (QSizeF(thumbPlaces[1].size()) * devicePixelRatioF()).toSize();
    for (std::size_t i = 0; i < m_thumbs.size(); ++i) {
        const ThumbSlot& slot = m_page.images.at(i);
        if (slot.shows == ThumbSlot::Shows::Kept)
            continue;
        const QPixmap cover =
            slot.shows == ThumbSlot::Shows::Cover ? m_pictures.cover(slot.file, most) : QPixmap();
        m_thumbs.at(i)->setPicture(cover.isNull() ? m_services.blank : cover);
    }
}

void frmThumbs::tmr_Mouse_Timer()
{
    const PointerPlace pointer = m_services.screen.pointer();
    // The right and the bottom edge count.
    const QRect place = QRect(mapToGlobal(barPlace.topLeft()), barPlace.size() + QSize(1, 1));
    m_picBar->setVisible(m_bar->isSliderDown() || place.contains(pointer.x, pointer.y));
}

void frmThumbs::choose()
{
    const QString id = m_caption->text().left(idLength);
    Q_EMIT chosen(id);
}

void frmThumbs::showEvent(QShowEvent* event)
{
    ShapedWindow::showEvent(event);
    if (!onWayland())
        m_mouse.start();
    setFocus();
}

void frmThumbs::hideEvent(QHideEvent* event)
{
    ShapedWindow::hideEvent(event);
    m_mouse.stop();
}

void frmThumbs::closeEvent(QCloseEvent* event)
{
    ShapedWindow::closeEvent(event);
    Q_EMIT unloaded();
}

void frmThumbs::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        m_bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        m_bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        break;
    case Qt::Key_PageUp:
        m_bar->triggerAction(QAbstractSlider::SliderPageStepSub);
        break;
    case Qt::Key_PageDown:
        m_bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        break;
    case Qt::Key_Home:
        m_bar->triggerAction(QAbstractSlider::SliderToMinimum);
        break;
    case Qt::Key_End:
        m_bar->triggerAction(QAbstractSlider::SliderToMaximum);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose();
        break;
    default:
        ShapedWindow::keyPressEvent(event);
    }
}

void frmThumbs::wheelEvent(QWheelEvent* event)
{
    constexpr int step = QWheelEvent::DefaultDeltasPerStep;
    const QPoint turned = event->angleDelta();
    m_wheel -= turned.y() != 0 ? turned.y() : turned.x();
    const int steps = m_wheel / step;
    m_wheel -= steps * step;
    m_bar->setValue(m_bar->value() + steps);
    event->accept();
}

bool frmThumbs::eventFilter(QObject* watched, QEvent* event)
{
    auto* const handle = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Enter:
        if (onWayland() && handle != this && handle->geometry() == barPlace)
            m_picBar->show();
        break;
    case QEvent::Leave:
        if (handle == m_picBar && !m_bar->isSliderDown())
            m_picBar->hide();
        break;
    case QEvent::MouseButtonPress: // any button closes the hand; the left one drags besides
        handle->setCursor(imgCurser(1));
        break;
    case QEvent::MouseButtonRelease:
        handle->setCursor(imgCurser(0));
        break;
    default:
        break;
    }
    return false;
}

} // namespace varnhold
