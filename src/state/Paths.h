#pragma once

#include <QString>

namespace varnhold {

/// The fixed places under the program's folder. `root` carries no trailing "/".
struct Paths
{
    QString root;

    [[nodiscard]] QString settingsIni() const;  ///< Settings.ini
    [[nodiscard]] QString hostsIni() const;     ///< hosts.ini
    [[nodiscard]] QString gameDatabase() const; ///< GameDB.mdb
    [[nodiscard]] QString defaultSkin() const;  ///< skin/default
    [[nodiscard]] QString versionFile() const;  ///< version.txt
    [[nodiscard]] QString idList() const;       ///< ps3gameids.txt
    [[nodiscard]] QString
    sound(int index) const; ///< wav/click.wav, menu.wav, startup.wav, shutdown.wav; index 0 to 3
};

/// Finds the program's folder: the given one (from --root), else VARNHOLD_ROOT, else the folder of the
/// executable when that is writable and the program is not installed (no `shareFolder`), else
/// $XDG_DATA_HOME/varnhold, filled on first use from `shareFolder` when that exists. Throws RunTimeError 76
/// or 75 when the folder cannot be made or used.
Paths findPaths(const QString& given, const QString& executableFolder, const QString& shareFolder);

} // namespace varnhold
