#pragma once

#include "platform/Screen.h"

namespace varnhold {

/// The primary screen of the running QGuiApplication.
class QtScreen : public Screen
{
public:
    [[nodiscard]] WorkArea workArea() const override;
    [[nodiscard]] std::vector<ScreenAreas> screens() const override;
    [[nodiscard]] int width() const override;
    [[nodiscard]] int height() const override;
    [[nodiscard]] PointerPlace pointer() const override;
};

} // namespace varnhold
