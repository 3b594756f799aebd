#pragma once

#include "download/DownloadFile.h"

namespace varnhold {

/// The real disk. Wildcards in names stand for themselves.
class DiskFiles : public DownloadFiles
{
public:
    std::unique_ptr<DownloadFile> makeFile() override;
    /// Files only, not folders; a path that ends in "/" counts when the folder holds a file.
    bool exists(const QString& path) override;
    void remove(const QString& path) override;
    void rename(const QString& from, const QString& to) override;
    void createEmpty(const QString& path) override;
    /// One level, and only when it is missing.
    void makeFolder(const QString& path) override;
};

} // namespace varnhold
