#include "download/frm_Winsock.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "controls/DesignValues.h"
#include "controls/SystemColorsUi.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "platform/CaptionDrag.h"
#include "platform/ElidedLabel.h"
#include "platform/ToolTipText.h"
#include "platform/Twips.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize{352, 164};
constexpr int margin = 8;
constexpr int valueLeft = 108;
constexpr int firstRow = 72;
constexpr int rowHeight = 14;

int rowTop(int row)
{
    return firstRow + row * rowHeight;
}

/// Image1: a parcel on its way down.
QPixmap decoration(const QColor& ink)
{
    QPixmap picture(14, 14);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.fillRect(6, 1, 2, 6, ink);
    for (int i = 0; i < 4; ++i)
        painter.fillRect(3 + i, 5 + i, 8 - 2 * i, 1, ink);
    painter.fillRect(1, 10, 12, 1, ink);
    painter.fillRect(1, 12, 12, 1, ink);
    return picture;
}

} // namespace

bool frm_Winsock::ClientPump::run(bool (MessagePump::*how)())
{
    ++m_depth;
    const bool goesOn = (m_inner.*how)();
    if (--m_depth == 0 && m_ended)
        m_left();
    return goesOn && !m_ended;
}

frm_Winsock::frm_Winsock(const Services& services, QWidget* owner)
    : ShapedWindow(owner), m_services(services), m_pump(services.client.pump, [this] { destroyWhenFree(); })
{
    const DownloadClient::Services& given = services.client;
    m_client = std::make_unique<DownloadClient>(DownloadClient::Services{
        given.sockets, given.files, given.clock, m_pump, given.boxes, given.applicationTitle});
    setObjectName("frm_Winsock"_L1);
    setWindowTitle(given.applicationTitle);
    setFixedSize(windowSize);
    // It comes while the user works elsewhere, and a key meant for there must not cancel it.
    setAttribute(Qt::WA_ShowWithoutActivating);
    build();
    connect(m_client.get(), &DownloadClient::labelsChanged, this, &frm_Winsock::showLabels);
    connect(m_client.get(), &DownloadClient::unloadRequested, this, &frm_Winsock::onUnload);
    showLabels();
}

frm_Winsock::~frm_Winsock() = default;

ElidedLabel* frm_Winsock::addLabel(const char* name, const QRect& place)
{
    auto* label = new ElidedLabel(this);
    label->setObjectName(QLatin1StringView(name));
    label->setGeometry(place);
    return label;
}

void frm_Winsock::addHeading(const QString& text, int row)
{
    auto* heading = new QLabel(text, this);
    heading->setProperty("quiet", true);
    heading->setGeometry(margin, rowTop(row), valueLeft - margin, rowHeight);
}

void frm_Winsock::build()
{
    const int inner = windowSize.width() - 2 * margin;
    const int values = windowSize.width() - valueLeft - margin;
    m_lblCaption = addLabel("lblCaption", {margin, 3, inner - 20, 16});
    m_lblCaption->setAccessibleDescription(tr("Progress of the download")); // its name is its text
    auto* drag =
        new CaptionDrag(*this, m_services.screen,
                        {.store = {},
                         .snaps = [this] { return m_services.settings.isChecked(Check::Edge); },
                         .keepWorkArea = [this](const WorkArea& area) { m_services.state.workArea = area; }});
    drag->addHandle(*m_lblCaption);

    m_lblName = addLabel("lblName", {margin, 24, inner, 16});
    m_lblName->setCursor(Qt::PointingHandCursor);
    m_lblName->installEventFilter(this);
    m_lblPath = addLabel("lblPath", {margin, 40, inner, rowHeight});
    m_lblUrl = addLabel("lblUrl", {margin, 54, inner, rowHeight});

    addHeading(u"Filesize :"_s, 0);
    m_lblFileSize = addLabel("lblFileSize", {valueLeft, rowTop(0), values, rowHeight});
    addHeading(u"Received :"_s, 1);
    m_lblLoaded = addLabel("lbl_Loaded", {valueLeft, rowTop(1), values, rowHeight});
    addHeading(u"kB's Received :"_s, 2);
    m_lblBytesR = addLabel("lblBytesR", {valueLeft, rowTop(2), 108, rowHeight});
    m_lblkBytes = addLabel("lblkBytes", {valueLeft + 112, rowTop(2), values - 112, rowHeight});
    m_lblkBytes->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    addHeading(u"Speed :"_s, 3);
    m_lblSpeed = addLabel("lbl_Speed", {valueLeft, rowTop(3), 108, rowHeight});
    m_lblDone = addLabel("lbl_Done", {valueLeft + 112, rowTop(3), values - 112, rowHeight});
    m_lblDone->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    m_bar = new XP_ProgressBar(this);
    m_bar->setObjectName("PB"_L1);
    m_bar->setAccessibleName(tr("Downloaded"));
    m_bar->setScrolling(design::frm_Winsock_PB_Scrolling);
    m_bar->setGeometry(margin, 131, inner, 9);

    auto* image = new QLabel(this);
    image->setObjectName("Image1"_L1);
    image->setGeometry(margin, 145, 14, 14);
    m_image = image;
    auto* maker = addLabel("Label2", {margin + 20, 144, 100, 16});
    maker->setText(u"Brackwater"_s);

    m_cancel = new ButtonEx(this);
    m_cancel->setObjectName("cmdCancel"_L1);
    m_cancel->setCaption(tr("Cancel"));
    m_cancel->setCancel(true);
    m_cancel->setGeometry(windowSize.width() - margin - 56, 144, 56, 16);
    connect(m_cancel, &ButtonEx::Click, this, [this] {
        m_services.sounds.play(Sound::Click);
        m_client->cmdCancel_Click();
    });
    auto* exit = new ButtonEx(this);
    exit->setObjectName("btnExit"_L1);
    exit->setCaption({});
    exit->setToolTip(tr("Close: what has arrived stays on disk"));
    exit->setAccessibleName(tr("Close"));
    exit->setGeometry(windowSize.width() - margin - 14, 4, 14, 14);
    connect(exit, &ButtonEx::Click, this, &frm_Winsock::unload);
}

void frm_Winsock::place(double leftTwips, double topTwips)
{
    move(pixelsFromTwips(leftTwips), pixelsFromTwips(topTwips));
}

void frm_Winsock::loadSkin()
{
    m_services.skin(*this);
    m_image->setPixmap(decoration(toQColor(m_cancel->HighlightColor())));
    // Last, so that the window appears in its opacity at once.
    SetOpacity(m_services.settings.opacity(OpacityOf::Download), *this);
}

void frm_Winsock::show()
{
    QWidget::show();
}

void frm_Winsock::unload()
{
    if (!m_unloaded)
        m_client->btnExit_Click();
}

void frm_Winsock::showLabels()
{
    const DownloadLabels& labels = m_client->labels();
    m_lblName->setText(labels.name);
    m_lblName->setToolTip(toolTipText(labels.nameToolTip));
    m_lblUrl->setText(labels.url);
    m_lblPath->setText(labels.path);
    m_lblFileSize->setText(labels.fileSize);
    m_lblLoaded->setText(labels.loaded);
    m_lblBytesR->setText(labels.bytesR);
    m_lblkBytes->setText(labels.kBytes);
    m_lblSpeed->setText(labels.speed);
    m_lblDone->setText(labels.done);
    m_lblCaption->setText(labels.caption);
    m_bar->setValue(labels.percent);
    m_cancel->setEnabled(labels.cancelEnabled);
    if (!labels.name.isEmpty())
        setWindowTitle(labels.name);
}

void frm_Winsock::onUnload()
{
    if (std::exchange(m_unloaded, true))
        return;
    hide();
    Q_EMIT unloaded();
    m_pump.end();
    if (!m_pump.isRunning())
        destroyWhenFree();
}

void frm_Winsock::destroyWhenFree()
{
    // Asked for at the level of the wait itself, it happens after the client's routine has returned.
    deleteLater();
}

void frm_Winsock::closeEvent(QCloseEvent* event)
{
    event->ignore();
    unload();
}

bool frm_Winsock::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_lblName && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        m_client->lblName_Click();
    return ShapedWindow::eventFilter(watched, event);
}

} // namespace varnhold
