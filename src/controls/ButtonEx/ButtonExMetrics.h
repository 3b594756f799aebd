#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>
#include <vector>

namespace varnhold {

/// One stroke of the bevelled look.
struct BevelStroke
{
    enum Kind { MonoFrame, FlatFrame, Raised, Sunken, Bump, Etched, ThinRaised, ThinSunken, FocusDots };

    Kind kind;
    QRect rect;
    bool operator==(const BevelStroke&) const = default;
};

/// What decides the bevel.
struct BevelRequest
{
    QSize size;
    int state = 1; ///< 0 to 3
    int appearance = 1;
    int borderStyle = 1;
    bool focused = false;
    bool allowFocus = true;
    bool allowDefault = true;
    bool displayAsDefault = false; ///< the host shows it as its window's default button
};

/// The strokes of the bevelled look in drawing order. A rectangle too small for a stroke is left out.
[[nodiscard]] std::vector<BevelStroke> bevelStrokes(const BevelRequest& request);

/// Where the dotted focus rectangle lies; empty on a control too small for it.
[[nodiscard]] QRect focusPlace(const QSize& control);

/// Length of a face on the control in twips, from its pixels at 96 to the inch.
[[nodiscard]] double skinTwips(int facePixels);
/// The same in logical pixels: never more than the face has, since a face is not scaled.
[[nodiscard]] QSize skinSize(const QSize& facePixels);

/// The caption as it is measured and told: without its first "&".
[[nodiscard]] QString captionText(const QString& caption);
/// Where in captionText the mnemonic letter stands; -1 when there is none.
[[nodiscard]] qsizetype captionMnemonic(const QString& caption);

[[nodiscard]] QRect glyphPlace(const QSize& face, const QSize& glyph, int appearance, const QPoint& offset);
/// Top left of the caption. glyph: where the glyph stands, if there is one.
[[nodiscard]] QPoint captionPlace(const QSize& face, const QSize& text, const std::optional<QRect>& glyph,
                                  const QPoint& offset);

} // namespace varnhold
