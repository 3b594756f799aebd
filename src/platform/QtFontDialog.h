#pragma once

#include "platform/FontDialog.h"

namespace varnhold {

/// The toolkit's font dialog, above the window that is in front.
class QtFontDialog : public FontDialog
{
public:
    std::optional<FontChoice> chooseFont(const FontChoice& first) override;
};

} // namespace varnhold
