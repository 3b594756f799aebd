#include "appearance/ButtonSigns.h"

#include "appearance/WindowControls.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/SystemColorsUi.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int signSide = 12;

enum class Sign {
    None,
    Minimize,
    Maximize,
    Restore,
    Close,
    Menu,
    Gear,
    Search,
    Reload,
    Clear,
    Up,
    Down,
    Notes,
    Add,
    Remove,
    Edit,
    New,
    Browse
};

Sign signOf(const ButtonEx& button)
{
    const QString name = button.objectName();
    if (name == "btn_WinState(0)"_L1)
        return Sign::Minimize;
    if (name == "btn_WinState(2)"_L1)
        return button.Caption() == "2"_L1 ? Sign::Restore : Sign::Maximize;
    if (name == "btn_WinState(1)"_L1 || name == "btnExit"_L1)
        return Sign::Close;
    if (name == "btn_Tools(1)"_L1)
        return Sign::Gear;
    if (name == "btn_Tools(0)"_L1)
        return Sign::Search;
    if (name == "btn_Options"_L1)
        return button.property("open").toBool() ? Sign::Up : Sign::Down;
    if (name == "btnFile"_L1)
        return Sign::Menu;
    if (name == "CmdRefresh"_L1)
        return Sign::Reload;
    if (name == "cmdClear"_L1)
        return Sign::Clear;
    if (name == "cmdView"_L1)
        return Sign::Notes;
    if (name == "CmdAdd"_L1 && button.Caption().isEmpty()) // the editor's own has a word
        return Sign::Add;
    if (name == "CmdDelete"_L1)
        return Sign::Remove;
    if (name == "cmdEdit"_L1)
        return Sign::Edit;
    if (name == "CmdNewRecord"_L1)
        return Sign::New;
    if (name == "CmdBrowse"_L1)
        return Sign::Browse;
    if (name == "btnSkinUpDwn(0)"_L1 || name == "btnSkinUpDwn(2)"_L1 || name == "btn_fav_Change(1)"_L1)
        return Sign::Down;
    if (name == "btnSkinUpDwn(1)"_L1 || name == "btnSkinUpDwn(3)"_L1 || name == "btn_fav_Change(0)"_L1)
        return Sign::Up;
    return Sign::None;
}

QPainterPath gear(const QPointF& centre)
{
    QPainterPath teeth;
    for (int i = 0; i < 8; ++i) {
        QTransform turn;
        turn.translate(centre.x(), centre.y());
        turn.rotate(i * 45.0);
        QPainterPath tooth;
        tooth.addRect(-0.9, -4.6, 1.8, 2.4);
        teeth.addPath(turn.map(tooth));
    }
    QPainterPath body;
    body.addEllipse(centre, 3.4, 3.4);
    QPainterPath hole;
    hole.addEllipse(centre, 1.4, 1.4);
    return teeth.united(body).subtracted(hole);
}

void drawReload(QPainter& painter, const QPointF& centre, const QColor& color)
{
    // An open circle; the arrow at its upper end points to the right.
    constexpr int degree = 16;
    const QRectF circle(centre - QPointF(3.5, 3), QSizeF(7, 7));
    painter.setPen(QPen(color, 1.3));
    painter.drawArc(circle, 90 * degree, 270 * degree);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QPointF tip = centre + QPointF(3.5, -3);
    painter.drawPolygon(QPolygonF({tip, tip + QPointF(-3.5, -3), tip + QPointF(-3.5, 3)}));
}

void drawSign(QPainter& painter, Sign sign, const QSize& size, const QColor& color)
{
    const QPointF centre(size.width() / 2.0, size.height() / 2.0);
    const double x = std::floor(centre.x());
    const double y = std::floor(centre.y());
    const auto line = [&](double left, double top, double width, double height) {
        painter.fillRect(QRectF(x + left, y + top, width, height), color);
    };
    const auto frame = [&](double left, double top, double width, double height) {
        line(left, top, width, 1);
        line(left, top + height - 1, width, 1);
        line(left, top, 1, height);
        line(left + width - 1, top, 1, height);
    };
    painter.setRenderHint(QPainter::Antialiasing);
    switch (sign) {
    case Sign::None:
        return;
    case Sign::Minimize:
        line(-3, 2, 6, 1);
        return;
    case Sign::Maximize:
        frame(-3, -3, 6, 6);
        line(-3, -2, 6, 1);
        return;
    case Sign::Restore:
        frame(-3, -1, 4, 4);
        line(-1, -3, 4, 1);
        line(2, -3, 1, 4);
        return;
    case Sign::Close:
        painter.setPen(QPen(color, 1.3));
        painter.drawLine(centre + QPointF(-2.5, -2.5), centre + QPointF(2.5, 2.5));
        painter.drawLine(centre + QPointF(-2.5, 2.5), centre + QPointF(2.5, -2.5));
        return;
    case Sign::Up:
    case Sign::Down: {
        const double tip = sign == Sign::Up ? -1.5 : 1.5;
        painter.setPen(QPen(color, 1.3));
        painter.drawPolyline(
            QPolygonF({centre + QPointF(-3, -tip), centre + QPointF(0, tip), centre + QPointF(3, -tip)}));
        return;
    }
    case Sign::Menu:
        for (const int top : {-3, 0, 3})
            line(-5, top - 1, 10, 1);
        return;
    case Sign::Gear:
        painter.fillPath(gear(centre), color);
        return;
    case Sign::Search:
        painter.setPen(QPen(color, 1.3));
        painter.drawEllipse(centre + QPointF(-1, -1), 3, 3);
        painter.setPen(QPen(color, 1.8));
        painter.drawLine(centre + QPointF(1.4, 1.4), centre + QPointF(4, 4));
        return;
    case Sign::Reload:
        drawReload(painter, centre, color);
        return;
    case Sign::Notes:
        frame(-5, -4, 10, 9);
        line(-3, -2, 6, 1);
        line(-3, 0, 6, 1);
        line(-3, 2, 4, 1);
        return;
    case Sign::Add:
        line(-4, 0, 9, 1);
        line(0, -4, 1, 9);
        return;
    case Sign::Remove: // a bin
        line(-1, -5, 3, 1);
        line(-4, -4, 9, 1);
        line(-3, -3, 1, 8);
        line(3, -3, 1, 8);
        line(-3, 4, 7, 1);
        line(-1, -2, 1, 5);
        line(1, -2, 1, 5);
        return;
    case Sign::Edit: // a pencil over a line
        painter.setPen(QPen(color, 2.2, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(centre + QPointF(-2.5, 1.5), centre + QPointF(3, -4));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(QPolygonF(
            {centre + QPointF(-4.5, 3.5), centre + QPointF(-3.6, 0.6), centre + QPointF(-1.6, 2.6)}));
        line(-1, 4, 6, 1);
        return;
    case Sign::New: // a sheet with a folded corner
        painter.setPen(QPen(color, 1));
        painter.drawPolyline(
            QPolygonF({QPointF(x + 0.5, y - 4.5), QPointF(x - 3.5, y - 4.5), QPointF(x - 3.5, y + 4.5),
                       QPointF(x + 3.5, y + 4.5), QPointF(x + 3.5, y - 1.5), QPointF(x + 0.5, y - 4.5),
                       QPointF(x + 0.5, y - 1.5), QPointF(x + 3.5, y - 1.5)}));
        return;
    case Sign::Browse:
        for (const int left : {-4, -1, 2})
            line(left, 0, 2, 2);
        return;
    case Sign::Clear:
        line(-5, -4, 7, 1);
        line(-5, -1, 4, 1);
        line(-5, 2, 4, 1);
        painter.setPen(QPen(color, 1.3));
        painter.drawLine(centre + QPointF(1, 0), centre + QPointF(4.5, 3.5));
        painter.drawLine(centre + QPointF(1, 3.5), centre + QPointF(4.5, 0));
        return;
    }
}

QPixmap draw(Sign sign, ColorValue color)
{
    const QSize size(signSide, signSide);
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawSign(painter, sign, size, toQColor(color));
    return picture;
}

} // namespace

void drawButtonSign(ButtonEx& button)
{
    const Sign sign = signOf(button);
    if (sign == Sign::None)
        return;
    // A glyph stands as far from the left as from the top; on a wide face that is not the middle.
    button.setPictureOffsetX((button.width() - button.height()) / 2);
    button.setPicture(draw(sign, button.ForeColor()));
    button.setPictureOver(draw(sign, button.HighlightColor()));
}

void drawButtonSigns(const QWidget& window)
{
    for (ButtonEx* const button : controlsOf<ButtonEx>(window))
        drawButtonSign(*button);
}

} // namespace varnhold
