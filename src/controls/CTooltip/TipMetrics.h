#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <array>

namespace varnhold {

/// What decides where a tip stands. Everything in logical pixels of the desktop.
struct TipRequest
{
    QSize body; ///< the tip without its tail
    bool balloon = false;
    bool centered = false;
    QPoint pointer;
    QRect owner;
    QRect screen;
};

struct TipPlace
{
    QRect window; ///< on the desktop
    QRect body;   ///< in the window, like the tail
    /// Base, point, base; all (0, 0) when the tip has no tail.
    std::array<QPoint, 3> tail{};
    bool hasTail = false;
};

/// Radius of a balloon's corners, and the room that content needs from the body's edges.
inline constexpr int balloonRadius = 7;
[[nodiscard]] QSize tipPadding(bool balloon);

/// A balloon stands above the pointer with its point on it, a rectangle below the pointer; a centred tip
/// below its owner. Each goes to the other side where the screen has no room, and is moved into the screen.
[[nodiscard]] TipPlace placeTip(const TipRequest& request);

} // namespace varnhold
