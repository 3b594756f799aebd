#pragma once

#include <QString>

namespace varnhold {

class Trash;

/// Sends a file or folder to the trash. Looks it up in its folder first: the exact name, else one that
/// differs in case only; links are passed over, and where the exact name is one, no namesake goes in its
/// place. Throws RunTimeError: 52 nothing matched, else what the trash says.
void RecycleFile(Trash& trash, const QString& path);

} // namespace varnhold
