#pragma once

#include <QHash>
#include <QString>

#include <cstdint>

namespace varnhold {

class Settings;

/// The local folder that holds covers, `<id>.jpg` each. A cover is found without regard to case, the exact
/// name first. The folder is listed once and again when it has changed, not once an id.
class CoverFolder
{
public:
    /// The folder of the settings as it is set at each call.
    explicit CoverFolder(const Settings& settings) : m_settings(&settings) {}
    explicit CoverFolder(QString path) : m_path(std::move(path)) {}

    [[nodiscard]] const QString& path() const; ///< empty: none is set
    /// The cover of a game: full path of a regular file, links followed. Empty when there is none, and for an
    /// id that names no file.
    [[nodiscard]] QString find(const QString& gameId) const;
    /// Where a fetched cover goes: the file that is there, else `<id>.jpg`. Empty for an id that names no
    /// file, such as one with a "/".
    [[nodiscard]] QString target(const QString& gameId) const;

private:
    using Names = QMultiHash<QString, QString>; ///< folded name to the names on disk
    struct Stamp
    {
        std::uint64_t device = 0;
        std::uint64_t node = 0;
        std::int64_t changed = 0; ///< nanoseconds
        bool operator==(const Stamp&) const = default;
    };

    static Stamp stampOf(const QString& folder);
    const Names& names(const QString& folder) const;

    const Settings* m_settings = nullptr;
    QString m_path;
    mutable QString m_listed; ///< which folder `m_names` is of
    mutable Stamp m_stamp;    ///< of it when it was listed; all 0: not to be trusted
    mutable Names m_names;    ///< of its .jpg files
};

} // namespace varnhold
