#pragma once

#include "download/DownloadFile.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>

namespace varnhold::test {

/// A disk in memory. Every call that could fail on a real one counts, and the planned ones fail.
class FakeDownloadFiles : public DownloadFiles
{
public:
    std::unique_ptr<DownloadFile> makeFile() override;
    bool exists(const QString& path) override { return contents.contains(path); }
    void remove(const QString& path) override;
    void rename(const QString& from, const QString& to) override;
    void createEmpty(const QString& path) override;
    void makeFolder(const QString& path) override;

    /// Counts one call; throws when a failure is planned for it.
    void step();

    QMap<QString, QByteArray> contents;
    QStringList folders; ///< made
    int calls = 0;
    int failingCall = 0;   ///< from 1; 0: none
    int failure = 61;      ///< with this number
    qint64 extraBytes = 0; ///< appendFrom tells so many more than it moved
};

} // namespace varnhold::test
