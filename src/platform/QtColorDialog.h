#pragma once

#include "platform/ColorDialog.h"

namespace varnhold {

/// The toolkit's colour dialog, above the window that is in front.
class QtColorDialog : public ColorDialog
{
public:
    std::optional<std::uint32_t> chooseColor(const QString& title, std::uint32_t first) override;
};

} // namespace varnhold
