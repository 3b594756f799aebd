#include "app/settings/frmSettings.h"

#include "app/settings/SettingsPage.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "platform/CaptionDrag.h"
#include "platform/ElidedLabel.h"
#include "platform/Wayland.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QCloseEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QWindow>

#include <algorithm>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize{400, 248};
constexpr QRect listPlace{8, 28, 92, 212};
constexpr int listRow = 20;
constexpr QRect pagePlace{108, 28, 284, 212};

// The pages in their order, whoever adds them first.
constexpr const char* pageOrder[] = {"frm_Covers",   "frm_Database(0)", "frm_Download", "frm_Listtext",
                                     "frm_Opacity",  "frm_Options",     "frm_Skin(0)",  "frm_Sound",
                                     "frm_Unwanted", "frm_About"};

auto placeOf(const SettingsPage& page)
{
    return std::ranges::find_if(
        pageOrder, [&](const char* name) { return page.objectName() == QLatin1StringView(name); });
}

} // namespace

frmSettings::frmSettings(const Services& services) : ShapedWindow(nullptr), m_services(services)
{
    setObjectName("frmSettings"_L1);
    setWindowTitle(u"Settings: "_s);
    setFixedSize(windowSize);
    buildCaption();
    buildList();
    connect(&services.settings, &Settings::changed, this, &frmSettings::refresh);
}

void frmSettings::buildCaption()
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
    auto* close = new ButtonEx(this);
    close->setObjectName("btn_WinState(1)"_L1);
    close->setCaption({});
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close"));
    close->setGeometry(windowSize.width() - 22, 4, 14, 14);
    close->setCancel(true);
    connect(close, &ButtonEx::Click, this, [this] { hide(); });
}

void frmSettings::buildList()
{
    m_list = new QListWidget(this);
    m_list->setObjectName("List1"_L1);
    m_list->setAccessibleName(tr("Pages"));
    m_list->setFrameShape(QFrame::NoFrame); // the window's picture draws the well
    m_list->setGeometry(listPlace);
    m_list->setMouseTracking(true);
    connect(m_list, &QListWidget::itemEntered, this,
            [this](const QListWidgetItem* item) { m_list->setToolTip(item->text()); });
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
}

void frmSettings::addPage(SettingsPage& page)
{
    page.setParent(this);
    page.setGeometry(pagePlace);
    const auto next = std::ranges::find_if(
        m_pages, [&](const SettingsPage* other) { return placeOf(*other) > placeOf(page); });
    const auto row = static_cast<int>(next - m_pages.begin());
    m_pages.insert(next, &page);
    auto* const item = new QListWidgetItem(page.heading().row);
    item->setSizeHint({0, listRow});
    const QSignalBlocker silence(*m_list);
    m_list->insertItem(row, item);
    m_list->setCurrentRow(0);
    showPage(0);
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
    SettingsPage* const shown = m_pages[static_cast<std::size_t>(row)];
    showCaption(shown->heading().caption);
    for (SettingsPage* const page : m_pages)
        page->setVisible(page == shown);
    Q_EMIT pageShown(shown);
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

void frmSettings::showPageOver(QWidget& owner, const SettingsPage& page)
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
    const auto row = static_cast<int>(std::ranges::find(m_pages, &page) - m_pages.begin());
    {
        const QSignalBlocker silence(*m_list);
        m_list->setCurrentRow(row);
    }
    showPage(row);
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
    for (SettingsPage* const page : m_pages)
        page->refresh();
}

void frmSettings::closeEvent(QCloseEvent* event)
{
    event->ignore();
    hide();
}

} // namespace varnhold
