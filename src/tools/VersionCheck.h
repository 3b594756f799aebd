#pragma once

#include "platform/FileFetch.h"

#include <QByteArrayView>
#include <QString>

namespace varnhold {

class MessageBoxes;
struct Hosts;
struct Paths;

/// The version that a version file names: its last line without any blanks. Lines end in CR LF, LF or CR; an
/// end behind the last line begins no other.
QString versionIn(QByteArrayView file);

/// True when the text sorts behind the program's own version by its character codes. Versions are compared as
/// plain texts, so 1.10.0 is older than 1.9.0; meant.
bool isNewerVersion(const QString& version);

struct VersionNews
{
    enum class Outcome {
        NotAsked, ///< there is no update host
        Unread,   ///< no version file at hand; what is shown stays as it is
        None,
        Newer,
    };
    Outcome outcome = Outcome::NotAsked;
    bool reached = false; ///< the host answered; otherwise the file of an earlier time was looked at
    QString caption;      ///< lblstat: "Update Available - " and the version
};

/// Fetches the version file over <Root>/version.txt, five seconds at most, and compares. A failed download
/// shows its box and goes on with the file that is there. Pumps events.
VersionNews Version_Check(FileFetch& fetch, const Hosts& hosts, const Paths& paths, MessageBoxes& boxes,
                          const QString& applicationTitle);

} // namespace varnhold
