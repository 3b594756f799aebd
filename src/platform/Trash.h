#pragma once

#include <QString>

namespace varnhold {

/// The desktop's trash, from which a file or folder can be brought back.
class Trash
{
public:
    virtual ~Trash() = default;
    /// Moves exactly what the path names (a link itself, not its target). Throws RunTimeError where it did
    /// not come to lie in the trash: 53 nothing there, 75 no trash or not allowed, 61 disk full. It never
    /// deletes, and never moves to another place.
    virtual void moveToTrash(const QString& path) = 0;
};

} // namespace varnhold
