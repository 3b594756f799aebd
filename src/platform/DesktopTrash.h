#pragma once

#include "platform/Trash.h"

namespace varnhold {

/// The trash of the desktop's own convention: in the user's data folder, or at the top of the file system
/// that the thing lies on.
class DesktopTrash : public Trash
{
public:
    void moveToTrash(const QString& path) override;
};

} // namespace varnhold
