#include "app/PlainLook.h"

#include "app/PlainColors.h"
#include "app/PlainFaces.h"
#include "app/PlainStyle.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/CTooltip/CTooltip.h"
#include "controls/DesignValues.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/SystemColorsUi.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "platform/ShapedWindow.h"

#include <QApplication>
#include <QBitmap>
#include <QPainter>

namespace varnhold::plainlook {

using namespace Qt::StringLiterals;

namespace {

constexpr int textPixels = 11;
constexpr int cornerRadius = 10;
constexpr int captionHeight = 21;

QString styleSheet()
{
    return uR"(
QLabel { color: #dfe9f7; background: transparent; }
QWidget#frmMain > QLabel#lblCaption, QLabel#lbl_Caption { font-weight: bold; }
QLabel#lblStatus, QLabel#lblBlank, QLabel#lblPath, QLabel#lblUrl, QLabel#lblPlatform,
QLabel#lblCompanyProduct, QLabel#Label2, QLabel#lblVersion, QLabel[quiet="true"] { color: #9fb2cf; }
QLabel#lblInfo, QLabel#lblName { color: #ffffff; font-weight: bold; }
QLabel#lblCnt { color: #3fd4e8; font-weight: bold; }
QLabel#lblProductName { color: #ffffff; font-size: 22px; }
QLabel#lblWarning { color: #3fd4e8; }
QLabel#PicPreview, QLabel#imgPreview { background: #0d1628; }
QWidget#barLeft, QWidget#barMain { background: #2d4166; }
QWidget#barLeft:hover, QWidget#barMain:hover { background: #3fd4e8; }
QLineEdit, QPlainTextEdit, QTextEdit, QListWidget, QTreeView {
    color: #dfe9f7; background: #0d1628; border: 1px solid #2d4166;
    selection-background-color: #16506a; selection-color: #ffffff; }
QLineEdit { padding: 0 3px; border-radius: 2px; }
QLineEdit:focus, QPlainTextEdit:focus, QListWidget:focus { border-color: #3fd4e8; }
QWidget#picMain > QTreeView, QWidget#picMain > QTextEdit, QWidget#picMain > QPlainTextEdit { border: none; }
QTreeView { outline: none; }
QListWidget { outline: none; }
QListWidget::item { height: 20px; border: 0px solid transparent; padding-left: 6px; color: #dfe9f7; }
QListWidget::item:hover { background: #152239; }
QListWidget::item:selected { background: #16506a; color: #ffffff; }
QHeaderView { background: #152239; }
QHeaderView::section { color: #9fb2cf; background: #152239; border: none;
    border-right: 1px solid #2d4166; border-bottom: 1px solid #2d4166; padding: 2px 4px; }
QAbstractScrollArea QScrollBar:vertical { background: #0d1628; width: 10px; margin: 0; }
QAbstractScrollArea QScrollBar:horizontal { background: #0d1628; height: 10px; margin: 0; }
QAbstractScrollArea QScrollBar::handle { background: #344c78; border-radius: 3px; margin: 2px; }
QAbstractScrollArea QScrollBar::handle:vertical { min-height: 20px; }
QAbstractScrollArea QScrollBar::handle:horizontal { min-width: 20px; }
QAbstractScrollArea QScrollBar::handle:hover { background: #3fd4e8; }
QAbstractScrollArea QScrollBar::add-line, QAbstractScrollArea QScrollBar::sub-line { width: 0; height: 0; }
QAbstractScrollArea QScrollBar::add-page, QAbstractScrollArea QScrollBar::sub-page { background: none; }
QMenu { color: #dfe9f7; background: #111c32; border: 1px solid #3d5686; padding: 4px 0; }
QMenu::item { padding: 4px 28px 4px 20px; }
QMenu::item:selected { background: #16506a; color: #ffffff; }
QMenu::separator { height: 1px; background: #2d4166; margin: 4px 8px; }
QToolTip { color: #dfe9f7; background: #152239; border: 1px solid #3d5686; padding: 2px 4px; }
)"_s;
}

QPalette palette()
{
    QPalette colors;
    colors.setColor(QPalette::Window, nightMiddle);
    colors.setColor(QPalette::WindowText, text);
    colors.setColor(QPalette::Base, panel);
    colors.setColor(QPalette::AlternateBase, nightMiddle);
    colors.setColor(QPalette::Text, text);
    colors.setColor(QPalette::PlaceholderText, QColor(0x7e93b5));
    colors.setColor(QPalette::Button, panelRaised);
    colors.setColor(QPalette::ButtonText, text);
    colors.setColor(QPalette::BrightText, Qt::white);
    colors.setColor(QPalette::ToolTipBase, panelRaised);
    colors.setColor(QPalette::ToolTipText, text);
    colors.setColor(QPalette::Highlight, accentDeep);
    colors.setColor(QPalette::HighlightedText, Qt::white);
    colors.setColor(QPalette::Link, accent);
    colors.setColor(QPalette::Light, innerLight);
    colors.setColor(QPalette::Mid, edge);
    colors.setColor(QPalette::Dark, nightBottom);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(QPalette::Disabled, role, QColor(0x6b7f9f));
    return colors;
}

QPixmap background(const QWidget& window)
{
    const double ratio = window.devicePixelRatioF();
    QPixmap picture(window.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    const QRectF all(QPointF(0, 0), QSizeF(window.size()));
    QPainter painter(&picture);
    QLinearGradient night(all.topLeft(), all.bottomLeft());
    night.setColorAt(0, nightTop);
    night.setColorAt(0.4, nightMiddle);
    night.setColorAt(1, nightBottom);
    painter.fillRect(all, night);
    painter.setPen(QPen(QColor(255, 255, 255, 14), 1));
    painter.drawLine(QPointF(1, captionHeight + 0.5), QPointF(all.right() - 1, captionHeight + 0.5));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(innerLight, 1));
    painter.drawRoundedRect(all.adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    for (const char* name : {"picLeft", "picMain"}) {
        if (const auto* column =
                window.findChild<QWidget*>(QLatin1StringView(name), Qt::FindDirectChildrenOnly)) {
            painter.fillRect(column->geometry().adjusted(-1, -1, 1, 1), edge);
            painter.fillRect(column->geometry(), panel);
        }
    }
    return picture;
}

QBitmap outline(const QSize& size)
{
    QBitmap shape(size);
    shape.clear();
    QPainter painter(&shape);
    painter.setBrush(Qt::color1);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRect({0, 0}, size), cornerRadius, cornerRadius);
    return shape;
}

void dressList(MorphListBox& list)
{
    list.setRedrawFlag(false);
    list.setBackColor1(toColorValue(panel));
    list.setBackColor2(toColorValue(nightMiddle));
    list.setBackAngle(90);
    list.setBackMiddleOut(false);
    list.setBorderWidth(0);
    list.setForeColor(toColorValue(text));
    list.setHighlightColor(toColorValue(Qt::white));
    list.setSelColor1(toColorValue(accentDeep));
    list.setSelColor2(toColorValue(accentDeep));
    list.setFocusRectColor(toColorValue(accent));
    list.setFocusBorderColor1(toColorValue(accent));
    list.setFocusBorderColor2(toColorValue(accent));
    list.setButtonColor1(toColorValue(panelRaised));
    list.setButtonColor2(toColorValue(edge));
    list.setArrowUpColor(toColorValue(text));
    list.setArrowDownColor(toColorValue(accent));
    list.setThumbColor1(toColorValue(edge));
    list.setThumbColor2(toColorValue(innerLight));
    list.setThumbBorderColor(toColorValue(innerLight));
    list.setTrackBarColor1(toColorValue(panel));
    list.setTrackBarColor2(toColorValue(panelRaised));
    list.setTrackClickColor1(toColorValue(accentDeep));
    list.setTrackClickColor2(toColorValue(accentDeep));
    list.setRedrawFlag(true);
}

} // namespace

void apply(QApplication& application)
{
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the application takes it
    QApplication::setStyle(new PlainStyle);
    QApplication::setPalette(palette());
    QFont font = QApplication::font();
    font.setPixelSize(textPixels);
    QApplication::setFont(font);
    application.setStyleSheet(styleSheet());
}

void dress(QWidget& window)
{
    if (auto* shaped = qobject_cast<ShapedWindow*>(&window))
        shaped->setPicture(background(window));
    window.setMask(outline(window.size()));
    for (ButtonEx* button : window.findChildren<ButtonEx*>())
        giveFaces(*button);
    for (MorphListBox* list : window.findChildren<MorphListBox*>())
        dressList(*list);
    for (CTooltip* tip : window.findChildren<CTooltip*>()) {
        tip->setForeColor(toColorValue(text));
        tip->setBackColor(toColorValue(panelRaised));
    }
    // The one look whose track is dark.
    for (XP_ProgressBar* bar : window.findChildren<XP_ProgressBar*>()) {
        bar->setScrolling(design::progresslook::office);
        bar->setColor(toColorValue(QColor(0x0a4152)));
    }
}

} // namespace varnhold::plainlook
