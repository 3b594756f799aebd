#pragma once

#include "state/Paths.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace varnhold::test {

/// A program folder of its own, gone at the end of the test.
class TempRoot
{
public:
    TempRoot();

    [[nodiscard]] const Paths& paths() const { return m_paths; }
    /// Full path of a name below the folder.
    [[nodiscard]] QString path(const QString& name) const;

    /// Writes a file, parents made as needed; its full path.
    QString write(const QString& name, const QByteArray& bytes) const;
    /// A file's bytes; a missing one fails the test.
    [[nodiscard]] QByteArray read(const QString& name) const;
    void makeFolder(const QString& name) const;
    /// A named pipe that nobody writes to: who opens it as if it were a file waits for good.
    void makePipe(const QString& name) const;

private:
    QTemporaryDir m_folder;
    Paths m_paths;
};

} // namespace varnhold::test
