#include "app/PlainFaces.h"

#include "app/PlainColors.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/SystemColorsUi.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace varnhold::plainlook {

using namespace Qt::StringLiterals;

namespace {

/// Colour of the faces that shows through: corners only, and drawn hard.
const QColor cutAway(0, 0, 255);

enum class Sign { None, Minimize, Maximize, Restore, Close, Menu, Gear, Play, Folder };

struct Family
{
    QSize size;
    Sign sign;
};

struct Face
{
    QColor top;
    QColor bottom;
    QColor rim;
    QColor sign;
    int sink; ///< pixels that the sign moves down
};

const Face faceUp{0x2a3d63, 0x1b2a48, 0x44608f, text, 0};
const Face faceOver{0x38578c, 0x27406a, 0x3fd4e8, QColor(Qt::white), 0};
const Face faceDown{0x121d34, 0x182743, 0x2d4166, quietText, 1};

Family familyOf(const ButtonEx& button)
{
    constexpr QSize small(14, 14);
    const QString name = button.objectName();
    if (name == "btn_WinState(0)"_L1)
        return {small, Sign::Minimize};
    if (name == "btn_WinState(2)"_L1)
        return {small, button.Caption() == "2"_L1 ? Sign::Restore : Sign::Maximize};
    if (name == "btn_WinState(1)"_L1 || name == "btnExit"_L1)
        return {small, Sign::Close};
    if (name == "btn_Tools(1)"_L1)
        return {small, Sign::Gear};
    if (name == "btnFile"_L1)
        return {QSize(28, 14), Sign::Menu};
    if (name == "btnFetch"_L1)
        return {QSize(40, 16), Sign::None};
    if (name.startsWith("cmd_Play"_L1))
        return {QSize(20, 18), Sign::Play};
    if (name == "btnSaveDir"_L1 || name == "cmdSound"_L1)
        return {QSize(28, 18), Sign::Folder};
    return {QSize(56, 16), Sign::None};
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
    case Sign::Menu:
        for (const int top : {-3, 0, 3})
            line(-5, top - 1, 10, 1);
        return;
    case Sign::Gear:
        painter.fillPath(gear(centre), color);
        return;
    case Sign::Play: {
        QPainterPath path;
        path.addPolygon(
            QPolygonF({centre + QPointF(-3, -4), centre + QPointF(4, 0), centre + QPointF(-3, 4)}));
        painter.fillPath(path, color);
        return;
    }
    case Sign::Folder:
        line(-6, -4, 5, 2);
        line(-6, -3, 12, 8);
        return;
    }
}

QPixmap draw(const Family& family, const Face& face)
{
    const QRect all({0, 0}, family.size);
    QPixmap picture(family.size);
    picture.fill(face.rim);
    QPainter painter(&picture);
    QLinearGradient light(0, 1, 0, all.height() - 1);
    light.setColorAt(0, face.top);
    light.setColorAt(1, face.bottom);
    painter.fillRect(all.adjusted(1, 1, -1, -1), light);
    const QPoint corners[] = {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight()};
    for (const QPoint& corner : corners)
        painter.fillRect(QRect(corner, QSize(1, 1)), cutAway);
    painter.translate(0, face.sink);
    drawSign(painter, family.sign, family.size, face.sign);
    return picture;
}

} // namespace

void giveFaces(ButtonEx& button)
{
    const Family family = familyOf(button);
    const QPixmap up = draw(family, faceUp);
    const QPixmap over = draw(family, faceOver);
    const QPixmap down = draw(family, faceDown);
    button.setForeColor(toColorValue(text));
    button.setHighlightColor(toColorValue(accent));
    button.setTransparentColor(toColorValue(cutAway));
    button.setAppearance(2);
    button.setSkinUp(up);
    button.setSkinOver(over);
    button.setSkinFocus(up);
    button.setSkinDown(down);
    button.setSkinDisabled(down);
}

} // namespace varnhold::plainlook
