// What is cut away is cut hard, at the outline only, and nothing else comes near the two colours.

#include "SkinFiles.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QColor>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

const QRgb magenta = qRgb(255, 0, 255);
const QRgb blue = qRgb(0, 0, 255);

bool leansTo(QRgb color, QRgb cut)
{
    const bool red = qRed(cut) == 0 || qRed(color) > 150;
    return red && qGreen(color) < 60 && qBlue(color) > 190 && (qRed(cut) > 0 || qRed(color) < 40);
}

bool isWindow(const QString& name)
{
    static const QStringList panels{u"background-mPic.bmp"_s, u"background-mLPic.bmp"_s,
                                    u"background-nPic.bmp"_s};
    return name.startsWith(u"background-"_s) && !panels.contains(name);
}

bool isFace(const QString& name)
{
    return name.startsWith(u"btn-"_s) || name.startsWith(u"file-btn"_s) ||
           name.startsWith(u"button"_s, Qt::CaseInsensitive);
}

} // namespace

class Cut : public testing::TestWithParam<QString>
{
protected:
    const SkinFiles& skin = SkinFiles::of(GetParam());
};

TEST_P(Cut, isPureAndOnlyWhereItMayBe)
{
    for (const QString& name : skin.names().filter(u".bmp"_s)) {
        const QImage picture = skin.picture(name);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QRgb color = picture.pixel(x, y);
                const bool fits = (!leansTo(color, magenta) || (color == magenta && isWindow(name))) &&
                                  (!leansTo(color, blue) || (color == blue && isFace(name)));
                ASSERT_TRUE(fits) << qPrintable(name) << ' ' << x << ' ' << y;
            }
        }
    }
}

TEST_P(Cut, takesCornersAndNoMore)
{
    for (const QString& name : skin.names()) {
        if (!isWindow(name) || !name.endsWith(u".bmp"_s))
            continue;
        const QImage picture = skin.picture(name);
        const QRect inner = picture.rect().adjusted(12, 3, -12, -12);
        int cut = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) != magenta)
                    continue;
                ++cut;
                ASSERT_FALSE(inner.contains(x, y)) << qPrintable(name) << ' ' << x << ' ' << y;
            }
        }
        EXPECT_GT(cut, 20) << qPrintable(name) << " has the shape of any window";
        EXPECT_LT(cut, 600) << qPrintable(name);
    }
}

INSTANTIATE_TEST_SUITE_P(Skins, Cut, testing::ValuesIn(skinNames()),
                         [](const auto& skin) { return skin.param.toStdString(); });

} // namespace varnhold::test
