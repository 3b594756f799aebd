#pragma once

#include <QString>

namespace varnhold {

class Settings;
class UpdateList;
struct ApplicationState;

/// Folder of the current title's downloads by the options: tag of txt_SaveDir, "/", id, "-[", name, "]" with
/// both on; the tag alone with Use DLDir alone; empty (names then stand at the file system's root) otherwise.
QString titleFolder(const Settings& settings, const QString& gameId, const QString& name);

/// The last part of that folder with both on: id, "-[", name, "]". The name comes from a document.
QString titleFolderName(const QString& gameId, const QString& name);

/// Sets each row's icon from the files on disk. A named folder that does not exist stops the walk at once,
/// and no row is ever set back to "pkg".
void Mark_Rows(UpdateList& list, const Settings& settings, ApplicationState& state, const QString& gameIdText,
               const QString& info);

} // namespace varnhold
