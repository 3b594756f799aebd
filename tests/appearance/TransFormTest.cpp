#include "appearance/TransForm.h"
#include "platform/PictureBox.h"
#include "platform/ShapedWindow.h"
#include "support/FakeMessageBoxes.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QRandomGenerator>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

/// The scan pixel by pixel and the subtraction run by run, written as plainly as can be.
QRegion plainRegion(const QImage& picture, const QSize& size, bool horizontal)
{
    const int outer = horizontal ? size.height() : size.width();
    const int inner = horizontal ? size.width() : size.height();
    QRegion region(0, 0, inner, outer);
    bool open = false;
    int first = 0;
    int last = 0;
    for (int y = 0; y <= outer; ++y) {
        for (int x = 0; x <= inner; ++x) {
            const bool inside = x < size.width() && y < size.height() && picture.valid(x, y);
            if (inside && (picture.pixel(x, y) & RGB_MASK) == 0xFF00FFU) {
                if (!open)
                    first = x;
                last = x;
                open = true;
            } else if (open) {
                const int left = std::min(first, last + 1);
                region -= QRegion(left, y, std::max(first, last + 1) - left, 1);
                open = false;
            }
        }
    }
    return region;
}

QImage randomPicture(QRandomGenerator& dice, const QSize& size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor(20, 30, 40));
    QPainter painter(&picture);
    for (int i = 0; i < 6; ++i) {
        const QRect blot(dice.bounded(-4, size.width()), dice.bounded(-4, size.height()),
                         dice.bounded(1, size.width() + 2), dice.bounded(1, size.height() / 2 + 2));
        painter.fillRect(blot, i % 3 == 2 ? QColor(20, 30, 40) : QColor(255, 0, 255));
    }
    for (int i = 0; i < 40; ++i)
        picture.setPixelColor(dice.bounded(size.width()), dice.bounded(size.height()), QColor(255, 0, 255));
    return picture;
}

} // namespace

TEST(TransForm, CutsWhatThePlainScanCuts)
{
    QRandomGenerator dice(20110117);
    for (int i = 0; i < 400; ++i) {
        const QSize size(dice.bounded(1, 40), dice.bounded(1, 40));
        const QSize window = i % 3 == 0 ? size : QSize(dice.bounded(1, 48), dice.bounded(1, 48));
        const QImage picture = randomPicture(dice, size);
        for (const bool horizontal : {true, false}) {
            const QRegion expected = plainRegion(picture, window, horizontal);
            const QRegion region = regionLeft(picture, window, cutAwayColor, horizontal);
            EXPECT_EQ(region, expected) << i << (horizontal ? " across" : " down");
            EXPECT_EQ(region.rectCount(), expected.rectCount()) << i << ": rows that are alike are joined";
        }
    }
    const QImage indexed = randomPicture(dice, {30, 20}).convertToFormat(QImage::Format_Indexed8);
    EXPECT_EQ(regionLeft(indexed, {30, 20}, cutAwayColor),
              plainRegion(indexed.convertToFormat(QImage::Format_RGB32), {30, 20}, true));
}

TEST(TransForm, ShapesAWindowOrAPictureBox)
{
    QPixmap picture(20, 10);
    picture.fill(Qt::black);
    QPainter(&picture).fillRect(19, 0, 1, 10, QColor(255, 0, 255));
    FakeMessageBoxes boxes;
    clsTransForm form(boxes);
    ShapedWindow window(nullptr);
    window.resize(20, 10);
    window.setPicture(picture);
    form.ShapeMe(cutAwayColor, true, &window);
    EXPECT_EQ(window.mask(), QRegion(0, 0, 19, 10)) << "the cut reaches the edge";
    PictureBox box;
    box.resize(30, 12);
    box.setPicture(picture);
    form.ShapeMe(cutAwayColor, true, nullptr, &box);
    EXPECT_EQ(box.mask(), QRegion(0, 0, 30, 12) - QRegion(19, 0, 1, 10));

    boxes.expect(
        u"Must pass in the name of either a Form OR a PictureBox.  TransForm received NONE or BOTH.  "
        "Function failed."_s,
        QString());
    form.ShapeMe(cutAwayColor, true, &window, &box);
    boxes.expect(boxes.shown.front().text);
    form.ShapeMe(cutAwayColor, true, nullptr);
    EXPECT_EQ(window.mask(), QRegion(0, 0, 19, 10)) << "left as it was";
}

} // namespace varnhold::test
