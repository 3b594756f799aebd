#include "controls/ButtonEx/ButtonExMetrics.h"

#include "controls/ButtonEx/ButtonExState.h"
#include "platform/Twips.h"

#include <algorithm>
#include <cmath>

namespace varnhold {

namespace {

constexpr int glyphMargin = 6;
constexpr int glyphTextGap = 4;
constexpr int focusInset = 3;
/// Hundredths of a millimetre to twips, rounded long ago; every window is laid out round the sizes it gives.
constexpr double himetricPerTwip = 1.76;
constexpr double himetricPerInch = 2540;
constexpr double pixelsPerInch = 96;

struct EdgePair
{
    BevelStroke::Kind raised;
    BevelStroke::Kind sunken;
};

EdgePair edgesOf(int borderStyle)
{
    switch (borderStyle) {
    case 2:
        return {BevelStroke::Bump, BevelStroke::Etched};
    case 3:
    case 4:
        return {BevelStroke::ThinRaised, BevelStroke::ThinSunken};
    default:
        return {BevelStroke::Raised, BevelStroke::Sunken};
    }
}

QRect inset(const QRect& rect, int by)
{
    return rect.adjusted(by, by, -by, -by);
}

} // namespace

std::vector<BevelStroke> bevelStrokes(const BevelRequest& request)
{
    std::vector<BevelStroke> strokes;
    const auto add = [&strokes](BevelStroke::Kind kind, const QRect& rect) {
        if (!rect.isEmpty())
            strokes.push_back({kind, rect});
    };
    const EdgePair edges = edgesOf(request.borderStyle);
    const bool framed = (request.focused || request.displayAsDefault) && request.allowDefault;
    QRect rect(QPoint(0, 0), request.size);
    bool focusShows = request.focused;
    const auto addRaised = [&] {
        if (framed) {
            add(BevelStroke::MonoFrame, rect);
            rect = inset(rect, 1);
        }
        add(edges.raised, rect);
    };

    switch (request.state) {
    case buttonstate::pressed:
        if (request.borderStyle == 0)
            break;
        if (framed) {
            add(BevelStroke::MonoFrame, rect);
            rect = inset(rect, 1);
            add(BevelStroke::FlatFrame, rect);
        } else {
            add(edges.sunken, rect);
        }
        break;
    case buttonstate::up:
        if ((request.appearance == 1 && request.borderStyle != 0) ||
            (request.appearance == 0 && request.borderStyle == 4))
            addRaised();
        else
            focusShows = false;
        break;
    case buttonstate::over:
        addRaised();
        break;
    default: // disabled: flat
        break;
    }
    if (request.allowFocus && focusShows)
        add(BevelStroke::FocusDots, focusPlace(request.size));
    return strokes;
}

QRect focusPlace(const QSize& control)
{
    return inset(QRect(QPoint(0, 0), control), focusInset);
}

double skinTwips(int facePixels)
{
    const double himetric = std::round(facePixels * himetricPerInch / pixelsPerInch);
    return himetric / himetricPerTwip;
}

QSize skinSize(const QSize& facePixels)
{
    // The formula comes out a little above the face, by a pixel from some 230 pixels on.
    const auto length = [](int pixels) { return std::min(pixelsFromTwips(skinTwips(pixels)), pixels); };
    return QSize(length(facePixels.width()), length(facePixels.height()));
}

QString captionText(const QString& caption)
{
    QString text = caption;
    const qsizetype mark = text.indexOf(u'&');
    if (mark >= 0)
        text.remove(mark, 1);
    return text;
}

qsizetype captionMnemonic(const QString& caption)
{
    const qsizetype mark = caption.indexOf(u'&');
    const bool letterFollows =
        mark >= 0 && mark + 1 < caption.size() && caption.at(mark + 1).isLetterOrNumber();
    return letterFollows ? mark : -1;
}

QRect glyphPlace(const QSize& face, const QSize& glyph, int appearance, const QPoint& offset)
{
    const int middle = (face.height() - glyph.height()) / 2;
    const int left = appearance != 2 ? std::max(glyphMargin, middle) : middle;
    return QRect(QPoint(left, middle) + offset, glyph);
}

QPoint captionPlace(const QSize& face, const QSize& text, const std::optional<QRect>& glyph,
                    const QPoint& offset)
{
    const int left =
        glyph ? glyph->left() + glyph->width() + glyphTextGap : (face.width() - text.width()) / 2;
    return QPoint(left, (face.height() - text.height()) / 2) + offset;
}

} // namespace varnhold
