#include "controls/MorphListBox/MorphListPainter.h"

#include "controls/Contrast.h"
#include "controls/MorphListBox/MorphListBackground.h"
#include "controls/MorphListBox/MorphListMarks.h"
#include "controls/SystemColorsUi.h"

#include <QPainter>

#include <algorithm>

namespace varnhold {

namespace {

/// An item's picture in device pixels. One without transparency of its own has magenta cut away.
QImage itemImage(const QPixmap& picture, int side)
{
    QImage image = picture.toImage();
    image.setDevicePixelRatio(1);
    if (!image.hasAlphaChannel()) {
        const QImage mask = image.createMaskFromColor(qRgb(255, 0, 255), Qt::MaskOutColor);
        image.setAlphaChannel(mask);
    }
    return image.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

void MorphListPainter::paint(QPainter& painter, const QRect& place, const QRegion& dirty,
                             MorphListModel& model, const MorphListLook& look)
{
    if (place.isEmpty())
        return;
    painter.save();
    // From here on a unit is a device pixel and the list begins at a whole one.
    const QTransform device = painter.deviceTransform();
    painter.resetTransform();
    const QTransform base = painter.deviceTransform();
    const QPointF corner = device.map(QPointF(place.topLeft()));
    painter.setWorldTransform(QTransform::fromTranslate(qRound(corner.x()), qRound(corner.y())) *
                              base.inverted());
    if (m_ratio != device.m11()) {
        forget();
        m_ratio = device.m11();
    }
    const QRect list = toDevice(QRect(QPoint(), place.size()));
    renewBackground(list.size(), model.focused(), look);
    m_texts.setFont(look.font, m_ratio);

    const QRect touched = dirty.boundingRect().translated(-place.topLeft());
    const QRect strip = toDevice(touched).intersected(list);
    painter.drawImage(strip.topLeft(), m_background, strip);
    if (isCurved(look.design)) { // rows and scroll bar keep off the corners
        painter.setClipPath(
            morphOutline(list.size(), look.design, morphBorderWidth(look.design, m_ratio), m_ratio),
            Qt::IntersectClip);
    }
    const MorphListMetrics& metrics = model.metrics();
    const int top = model.topIndex();
    for (int index = top; index <= model.lastVisible(); ++index) {
        const QRect row = metrics.row(index - top);
        if (touched.intersects(row) && dirty.intersects(row.translated(place.topLeft())))
            paintRow(painter, index, model, look);
    }
    if (metrics.hasScrollBar() && touched.intersects(metrics.bar())) {
        m_scrollBar.paint(
            painter, model, look.design, look.enabled, [this](const QRect& part) { return toDevice(part); },
            std::max(1, qRound(m_ratio)));
    }
    painter.restore();
}

void MorphListPainter::forget()
{
    m_background = {};
    m_selection = {};
    m_tones.clear();
    m_images.clear();
    m_scrollBar.forget();
    m_texts.forget();
}

void MorphListPainter::paintRow(QPainter& painter, int index, MorphListModel& model,
                                const MorphListLook& look)
{
    const MorphListDesign& design = look.design;
    const MorphListMetrics& metrics = model.metrics();
    const int visible = index - model.topIndex();
    const QRect row = toDevice(metrics.row(visible));
    const bool selected = model.showsSelected(index);
    if (row.isEmpty())
        return;
    if (selected)
        painter.drawImage(row.topLeft(), selectionStrip(row.size(), look), QRect(QPoint(), row.size()));

    if (model.checkList()) {
        const QRect box = toDevice(metrics.checkBox(visible));
        const int line = std::max(1, qRound(m_ratio));
        paintFrame(painter, box, line,
                   toQColor(look.enabled ? design.CheckBoxColor : design.DisCheckboxColor));
        if (model.selected(index)) {
            paintCheckMark(painter, box, look.CheckStyle,
                           toQColor(look.enabled ? design.CheckboxArrowColor : design.DisCheckboxArrowColor));
        }
    }
    if (look.ShowItemImages)
        paintImage(painter, toDevice(metrics.image(visible)), model.imageIndex(index), look);

    paintText(painter, index, selected, model, look);
    if (look.ShowSelectRect && model.focused() && index == model.focusRow()) {
        paintDottedFrame(painter, row, std::max(1, qRound(m_ratio)),
                         toQColor(look.enabled ? design.FocusRectColor : design.DisFocusRectColor));
    }
}

void MorphListPainter::paintText(QPainter& painter, int index, bool selected, MorphListModel& model,
                                 const MorphListLook& look)
{
    const MorphListDesign& design = look.design;
    const int visible = index - model.topIndex();
    const QRect place = toDevice(model.metrics().text(visible));
    const ColorValue color = selected ? (look.enabled ? design.HighlightColor : design.DisHighlightColor)
                                      : (look.enabled ? design.ForeColor : design.DisForeColor);
    TextInk ink{color, std::nullopt};
    if (look.ReadableText)
        ink = readableInk(color, tonesUnder(place, toDevice(model.metrics().row(visible)), selected));
    if (ink.rim) {
        m_texts.paintRimmed(painter, place, model.text(index), toQColor(ink.color), toQColor(*ink.rim),
                            look.RightToLeft);
    } else {
        m_texts.paint(painter, place, model.text(index), toQColor(ink.color), look.RightToLeft);
    }
}

const GroundTones& MorphListPainter::tonesUnder(const QRect& text, const QRect& row, bool selected)
{
    // The strip of the selection is the same for each row.
    const QImage& ground = selected ? m_selection : m_background;
    const QRect place = (selected ? text.translated(-row.topLeft()) : text).intersected(ground.rect());
    const auto known = std::ranges::find(m_tones, std::pair(selected, place), &Measured::key);
    if (known != m_tones.end())
        return known->tones;
    GroundTones tones{1, 0};
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(ground.constScanLine(y));
        for (int x = place.left(); x <= place.right(); ++x) {
            const double luminance = luminanceOf(colorOf(qRed(line[x]), qGreen(line[x]), qBlue(line[x])));
            tones.darkest = std::min(tones.darkest, luminance);
            tones.lightest = std::max(tones.lightest, luminance);
        }
    }
    if (place.isEmpty())
        tones.darkest = 0;
    m_tones.push_back({{selected, place}, tones});
    return m_tones.back().tones;
}

void MorphListPainter::paintImage(QPainter& painter, const QRect& place, int image, const MorphListLook& look)
{
    if (image < 0 || image >= look.images.size() || look.images.at(image).isNull() || place.isEmpty())
        return;
    if (m_images.size() < look.images.size())
        m_images.resize(look.images.size());
    QImage& scaled = m_images[image];
    if (scaled.height() != place.height())
        scaled = itemImage(look.images.at(image), place.height());
    painter.drawImage(place.topLeft(), scaled);
}

const QImage& MorphListPainter::selectionStrip(const QSize& size, const MorphListLook& look)
{
    // At fractional ratios rows differ by a pixel in height; the strip is a pixel higher and runs sideways.
    if (m_selection.width() != size.width() || m_selection.height() < size.height()) {
        const MorphListDesign& design = look.design;
        m_tones.clear();
        m_selection = morphGradientImage({size.width(), size.height() + 1,
                                          look.enabled ? design.SelColor1 : design.DisSelColor1,
                                          look.enabled ? design.SelColor2 : design.DisSelColor2,
                                          look.RightToLeft ? 180.0F : 0.0F, false, false});
    }
    return m_selection;
}

void MorphListPainter::renewBackground(const QSize& size, bool focused, const MorphListLook& look)
{
    if (m_background.size() == size && m_focusedBackground == focused)
        return;
    m_focusedBackground = focused;
    m_tones.clear();
    m_background = paintMorphBackground({size, m_ratio, look.enabled, focused, look.design,
                                         look.enabled ? look.Picture : look.DisPicture,
                                         look.enabled ? look.PictureMode : look.DisPictureMode});
}

QRect MorphListPainter::toDevice(const QRect& logical) const
{
    // Edges are rounded, not sizes, so that neighbours meet.
    const auto scaled = [this](int edge) { return qRound(edge * m_ratio); };
    return {QPoint(scaled(logical.left()), scaled(logical.top())),
            QPoint(scaled(logical.right() + 1) - 1, scaled(logical.bottom() + 1) - 1)};
}

} // namespace varnhold
