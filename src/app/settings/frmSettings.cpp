#include "app/settings/frmSettings.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "platform/CaptionDrag.h"
#include "platform/ElidedLabel.h"
#include "platform/MessagePump.h"
#include "platform/Wayland.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"
#include "state/WaitLoop.h"

#include <QCloseEvent>
#include <QFontInfo>
#include <QFrame>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QWindow>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize{400, 248};
constexpr QRect listPlace{8, 28, 92, 212};
constexpr int listRow = 20;
constexpr QRect pagePlace{108, 28, 284, 212};

} // namespace

frmSettings::frmSettings(const Services& services) : ShapedWindow(nullptr), m_services(services)
{
    setObjectName("frmSettings"_L1);
    setWindowTitle(u"Settings: "_s);
    setFixedSize(windowSize);
    buildFrame();
    buildDatabase();
    buildDownload();
    buildOpacity();
    buildOptions();
    buildSkin();
    buildSounds();
    buildUnwanted();
    m_warnLater.setSingleShot(true);
    connect(&m_warnLater, &QTimer::timeout, this, &frmSettings::warn);
    m_list->setCurrentRow(0);
    showPage(0);
    connect(m_list, &QListWidget::itemClicked, this, [this] {
        m_services.sounds.play(Sound::Click);
        showPage(m_list->currentRow());
    });
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        // By key; a click comes as itemClicked.
        if (QGuiApplication::mouseButtons() == Qt::NoButton) {
            m_services.sounds.play(Sound::Click);
            showPage(row);
        }
    });
    connect(&m_services.settings, &Settings::changed, this, &frmSettings::refresh);
}

void frmSettings::buildFrame()
{
    auto* icon = new QLabel(u"⚙"_s, this);
    icon->setObjectName("img_Icon"_L1);
    icon->setAlignment(Qt::AlignCenter);
    icon->setGeometry(6, 3, 16, 16);
    m_caption = new ElidedLabel(this);
    m_caption->setObjectName("lbl_Caption"_L1);
    m_caption->setGeometry(24, 3, windowSize.width() - 48, 16);
    auto* drag =
        new CaptionDrag(*this, m_services.screen,
                        {.store = {},
                         .snaps = [this] { return m_services.settings.isChecked(Check::Edge); },
                         .keepWorkArea = [this](const WorkArea& area) { m_services.state.workArea = area; }});
    drag->addHandle(*icon);
    drag->addHandle(*m_caption);
    ButtonEx* close = addButton(*this, "btn_WinState(1)", tr("Close"), {windowSize.width() - 22, 4, 14, 14});
    close->setCancel(true);
    connect(close, &ButtonEx::Click, this, [this] { hide(); });
    m_list = new QListWidget(this);
    m_list->setObjectName("List1"_L1);
    m_list->setAccessibleName(tr("Pages"));
    m_list->setFrameShape(QFrame::NoFrame); // the window's picture draws the well
    m_list->setGeometry(listPlace);
    m_list->setMouseTracking(true);
    connect(m_list, &QListWidget::itemEntered, this,
            [this](const QListWidgetItem* item) { m_list->setToolTip(item->text()); });
}

QFrame* frmSettings::addPage(const QString& row, const char* name, const QString& caption)
{
    auto* frame = new QFrame(this);
    frame->setObjectName(QLatin1StringView(name));
    frame->setGeometry(pagePlace);
    frame->hide();
    m_pages.push_back({caption, frame});
    auto* item = new QListWidgetItem(row, m_list);
    item->setSizeHint({0, listRow});
    return frame;
}

ButtonEx* frmSettings::addButton(QWidget& page, const char* name, const QString& toolTip, const QRect& place)
{
    auto* button = new ButtonEx(&page);
    button->setObjectName(QLatin1StringView(name));
    button->setCaption({});
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setGeometry(place);
    return button;
}

void frmSettings::showCaption(const QString& text)
{
    m_caption->setFont(font());
    m_caption->setText(text);
    // What asks the user to do something is to be read whole.
    QFont smaller = font();
    smaller.setPixelSize(QFontInfo(smaller).pixelSize() - 1);
    if (m_caption->fontMetrics().horizontalAdvance(text) > m_caption->width())
        m_caption->setFont(smaller);
}

void frmSettings::showPage(int row)
{
    if (row < 0 || row >= static_cast<int>(m_pages.size()))
        return;
    showCaption(m_pages.at(static_cast<std::size_t>(row)).caption);
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        m_pages[i].frame->setVisible(static_cast<int>(i) == row);
}

void frmSettings::open(const QPoint& place)
{
    if (!isVisible()) {
        setWindowTitle(u"Settings: "_s);
        refresh();
        if (!onWayland())
            move(place);
        show();
        m_list->setFocus();
    }
    raise();
    activateWindow();
}

void frmSettings::showPageOver(QWidget& owner, const char* name)
{
    // Window managers keep a dialog above its owner, but not a plain window.
    if (!isVisible())
        setWindowFlag(Qt::Dialog);
    winId(); // an owner needs a handle
    owner.winId();
    windowHandle()->setTransientParent(owner.windowHandle());
    if (!onWayland())
        move(owner.pos());
    refresh();
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        if (m_pages[i].frame->objectName() == QLatin1StringView(name)) {
            const QSignalBlocker silence(*m_list);
            m_list->setCurrentRow(static_cast<int>(i));
            showPage(static_cast<int>(i));
        }
    }
    m_awaitsOwner = true;
    if (owner.isVisible())
        followOwner();
}

bool frmSettings::followOwner()
{
    if (!m_awaitsOwner)
        return false;
    m_awaitsOwner = false;
    show();
    raise();
    activateWindow();
    return true;
}

void frmSettings::refresh()
{
    m_refreshing = true;
    for (const auto& refresher : m_refreshers)
        refresher();
    m_refreshing = false;
}

void frmSettings::closeEvent(QCloseEvent* event)
{
    event->ignore();
    hide();
}

bool frmSettings::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_unwanted && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        // The key itself goes its way: the file takes the first line, until a click of RemoveUnw joins all.
        if (key == Qt::Key_Control || key == Qt::Key_Return || key == Qt::Key_Enter)
            m_warnLater.start();
    }
    return ShapedWindow::eventFilter(watched, event);
}

void frmSettings::warn()
{
    m_warning->show();
    Wait_Loop(1, m_services.pump);
    m_warning->hide();
}

} // namespace varnhold
