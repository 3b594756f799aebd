#pragma once

#include <vector>

namespace varnhold {

/// The desktop work area of the primary screen (without panels), in logical pixels; right and bottom are
/// one past the last pixel.
struct WorkArea
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// One of the screens of the desktop, with its panels and without.
struct ScreenAreas
{
    WorkArea whole;
    WorkArea work;
};

struct PointerPlace
{
    int x = 0;
    int y = 0;
};

class Screen
{
public:
    virtual ~Screen() = default;
    [[nodiscard]] virtual WorkArea workArea() const = 0;
    /// All screens, the primary one first.
    [[nodiscard]] virtual std::vector<ScreenAreas> screens() const = 0;
    /// Size of the primary screen in logical pixels.
    [[nodiscard]] virtual int width() const = 0;
    [[nodiscard]] virtual int height() const = 0;
    /// Where the pointer is, in logical pixels of the desktop.
    [[nodiscard]] virtual PointerPlace pointer() const = 0;
};

} // namespace varnhold
