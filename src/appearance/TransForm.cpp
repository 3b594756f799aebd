#include "appearance/TransForm.h"

#include "appearance/ColorKeyRuns.h"
#include "controls/SystemColorsUi.h"
#include "platform/MessageBoxes.h"
#include "platform/ShapedWindow.h"

#include <QPixmap>
#include <QVariant>
#include <QWidget>

namespace varnhold {

using namespace Qt::StringLiterals;

QRegion regionLeft(const QImage& picture, const QSize& size, ColorValue color, bool horizontal)
{
    const QImage pixels = picture.depth() == 32 ? picture : picture.convertToFormat(QImage::Format_RGB32);
    const PixelView view{reinterpret_cast<const quint32*>(pixels.constBits()), pixels.width(),
                         pixels.height(), pixels.bytesPerLine() / qsizetype(sizeof(quint32))};
    const std::vector<QRect> kept = rectanglesLeft(view, size, toQColor(color).rgb() & RGB_MASK, horizontal);
    QRegion region;
    region.setRects(kept.data(), static_cast<int>(kept.size()));
    return region;
}

void cutTo(QWidget& widget, const QRegion& shape)
{
    if (auto* const window = qobject_cast<ShapedWindow*>(&widget))
        window->setShape(shape);
    else
        widget.setMask(shape);
}

void clsTransForm::ShapeMe(ColorValue color, bool HorizontalScan, QWidget* Name1, QWidget* Name2)
{
    if ((Name1 == nullptr) == (Name2 == nullptr)) {
        m_boxes.show({.text = u"Must pass in the name of either a Form OR a PictureBox.  TransForm received "
                              "NONE or BOTH.  Function failed."_s,
                      .title = {},
                      .icon = BoxIcon::None,
                      .buttons = BoxButtons::Ok});
        return;
    }
    QWidget& shaped = Name1 != nullptr ? *Name1 : *Name2;
    const QPixmap picture = shaped.property("Picture").value<QPixmap>();
    const QRegion region = regionLeft(picture.toImage(), shaped.size(), color, HorizontalScan);
    // An empty mask would be none; nothing of the window stays.
    cutTo(shaped, region.isEmpty() ? QRegion(-1, -1, 1, 1) : region);
}

} // namespace varnhold
