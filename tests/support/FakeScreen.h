#pragma once

#include "platform/Screen.h"

namespace varnhold::test {

/// A screen of 1920 x 1080 with a panel of 40 pixels at the bottom, unless the test says otherwise.
class FakeScreen : public Screen
{
public:
    [[nodiscard]] WorkArea workArea() const override { return area; }
    [[nodiscard]] std::vector<ScreenAreas> screens() const override
    {
        std::vector<ScreenAreas> all{{{0, 0, width(), fullHeight}, area}};
        all.insert(all.end(), others.begin(), others.end());
        return all;
    }
    [[nodiscard]] int width() const override { return area.right; }
    [[nodiscard]] int height() const override { return fullHeight; }
    [[nodiscard]] PointerPlace pointer() const override { return place; }

    WorkArea area{0, 0, 1920, 1040};
    int fullHeight = 1080;
    std::vector<ScreenAreas> others;
    PointerPlace place;
};

} // namespace varnhold::test
