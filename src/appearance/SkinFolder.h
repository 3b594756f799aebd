#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace varnhold {

/// The files of a skin's folder as one run of the appearance finds them. Names are resolved without regard to
/// case: skins come from systems that ignore it. Each folder is listed once; make a new object for each run.
class SkinFolder
{
public:
    /// `path`: without a trailing "/".
    explicit SkinFolder(QString path);

    [[nodiscard]] const QString& path() const { return m_path; }
    /// True when the folder holds a file of that name; no error is raised.
    [[nodiscard]] bool has(const QString& name) const;
    /// Full path of a file, its name as it stands on disk. A name may lead into a sub-folder ("menu/db.bmp").
    /// Throws RunTimeError: 76 the folder or sub-folder is gone, 75 it cannot be listed, 53 no such file.
    [[nodiscard]] QString find(const QString& name) const;
    /// The file's bytes. Throws as find(); 75 when it cannot be read, 7 when it is beyond all measure.
    [[nodiscard]] QByteArray read(const QString& name) const;

    /// Bytes of any file, with the same errors.
    static QByteArray readFile(const QString& path);

private:
    using Names = QHash<QString, QString>; ///< folded name to the name on disk

    [[nodiscard]] const Names& namesOf(const QString& subFolder) const;

    QString m_path;
    mutable QHash<QString, Names> m_listed;
};

} // namespace varnhold
