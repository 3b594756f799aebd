#include "app/main/PackageIcons.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

#include <functional>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

// Drawn on a grid of 16 units, so that lines fall on whole pixels at 16, 32 and 48.
constexpr int grid = 16;

const QColor parcelFill(0x6f8fb8);
const QColor parcelLid(0x9db8da);
const QColor parcelTape(0xdfe9f6);
const QColor wrongFill(0xc8434f);
const QColor wrongLid(0xec7f86);
const QColor wrongTape(0xffdfe0);
const QColor good(0x54d38a);
const QColor busy(0x35d0e6);
const QColor quiet(0x8798b3);
const QColor badgeRim(0x0b1322);

void drawParcel(QPainter& painter, const QColor& fill, const QColor& lid, const QColor& tape)
{
    painter.fillRect(QRectF(1, 5, 12, 9), fill);
    painter.setPen(Qt::NoPen);
    painter.setBrush(lid);
    painter.drawPolygon(QPolygonF({{1, 5}, {3, 2}, {11, 2}, {13, 5}}));
    painter.fillRect(QRectF(6, 2, 2, 6), tape);
}

void drawPlus(QPainter& painter, const QPointF& centre, double arm, const QColor& color)
{
    const double half = arm >= 5 ? 1.5 : 1;
    painter.fillRect(QRectF(centre.x() - half, centre.y() - arm, 2 * half, 2 * arm), color);
    painter.fillRect(QRectF(centre.x() - arm, centre.y() - half, 2 * arm, 2 * half), color);
}

void drawBadge(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(badgeRim);
    painter.drawEllipse(QRectF(7, 7, 9, 9));
}

void drawArrowDown(QPainter& painter)
{
    drawBadge(painter);
    painter.setBrush(busy);
    painter.fillRect(QRectF(11, 8, 2, 4), busy);
    painter.drawPolygon(QPolygonF({{8.5, 11}, {15.5, 11}, {12, 15}}));
}

void drawNotAvailable(QPainter& painter)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(quiet, 2));
    painter.drawEllipse(QRectF(3, 3, 10, 10));
    painter.drawLine(QPointF(5, 11), QPointF(11, 5));
}

/// A grid of tiles, as a code has.
void drawBinary(QPainter& painter)
{
    constexpr int tiles[][2] = {{2, 2}, {6, 2}, {12, 2}, {4, 6}, {9, 6}, {2, 10}, {7, 10}, {12, 10}};
    for (const auto& [x, y] : tiles)
        painter.fillRect(QRectF(x, y, 2, 3), parcelLid);
}

/// Two links of a chain.
void drawChain(QPainter& painter)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(parcelLid, 2));
    painter.drawRoundedRect(QRectF(2, 6, 7, 5), 2.5, 2.5);
    painter.drawRoundedRect(QRectF(7, 6, 7, 5), 2.5, 2.5);
}

void drawCase(QPainter& painter)
{
    painter.fillRect(QRectF(3, 1, 10, 14), parcelFill);
    painter.fillRect(QRectF(3, 1, 2, 14), parcelLid);
    painter.fillRect(QRectF(7, 4, 4, 3), parcelTape);
}

/// What a game is played with.
void drawPad(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(parcelFill);
    painter.drawRoundedRect(QRectF(1, 4, 14, 8), 4, 4);
    drawPlus(painter, {5, 8}, 2.5, parcelTape);
    painter.setBrush(parcelTape);
    painter.drawEllipse(QRectF(10, 6.5, 3, 3));
}

/// A ruler with its marks.
void drawSize(QPainter& painter)
{
    painter.fillRect(QRectF(1, 5, 14, 6), parcelFill);
    for (int x = 3; x < 15; x += 3)
        painter.fillRect(QRectF(x, 5, 1, x % 2 == 0 ? 2 : 4), parcelTape);
}

/// A disc, the system's.
void drawVersion(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(parcelLid);
    painter.drawEllipse(QRectF(2, 2, 12, 12));
    painter.setBrush(badgeRim);
    painter.drawEllipse(QRectF(6, 6, 4, 4));
}

const QHash<QString, std::function<void(QPainter&)>>& drawings()
{
    static const QHash<QString, std::function<void(QPainter&)>> table = {
        {u"pkg"_s, [](QPainter& painter) { drawParcel(painter, parcelFill, parcelLid, parcelTape); }},
        {u"pkg-plus"_s,
         [](QPainter& painter) {
             drawParcel(painter, parcelFill, parcelLid, parcelTape);
             drawBadge(painter);
             drawPlus(painter, {11.5, 11.5}, 3.5, good);
         }},
        {u"pkg-red"_s, [](QPainter& painter) { drawParcel(painter, wrongFill, wrongLid, wrongTape); }},
        {u"plus"_s,
         [](QPainter& painter) {
             drawPlus(painter, {7.5, 8.5}, 5.5, good);
         }},
        {u"pkg-dl"_s,
         [](QPainter& painter) {
             drawParcel(painter, parcelFill, parcelLid, parcelTape);
             drawArrowDown(painter);
         }},
        {u"n/a"_s, drawNotAvailable},
        {u"psn"_s, drawPad},
        {u"cover"_s, drawCase},
        {u"version"_s, drawVersion},
        {u"size"_s, drawSize},
        {u"binary"_s, drawBinary},
        {u"url"_s, drawChain},
    };
    return table;
}

} // namespace

QIcon packageIcon(const QString& key)
{
    static QHash<QString, QIcon> made;
    if (const auto found = made.constFind(key); found != made.constEnd())
        return *found;
    QIcon icon;
    if (const auto draw = drawings().constFind(key); draw != drawings().constEnd()) {
        for (const int scale : {1, 2, 3}) {
            QPixmap picture(grid * scale, grid * scale);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(scale, scale);
            (*draw)(painter);
            painter.end();
            // Neither the selection nor a locked list tints an icon: its colour is what it says.
            for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected, QIcon::Disabled})
                icon.addPixmap(picture, mode);
        }
    }
    made.insert(key, icon);
    return icon;
}

} // namespace varnhold
