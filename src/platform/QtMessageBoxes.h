#pragma once

#include "platform/MessageBoxes.h"

namespace varnhold {

/// Message boxes on the desktop, above the window that is active.
class QtMessageBoxes : public MessageBoxes
{
public:
    BoxAnswer show(const MessageBox& box) override;
};

} // namespace varnhold
