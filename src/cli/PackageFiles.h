#pragma once

#include "download/ArrivalSum.h"
#include "download/DiskFiles.h"

#include <QString>

#include <functional>
#include <optional>

namespace varnhold::cli {

/// What a package is to be on disk.
struct PackageTarget
{
    QString path;                    ///< absolute, ends in ".pkg"
    std::optional<qint64> size = {}; ///< what the document says
    bool overwrite = false;
    bool summed = false; ///< its sums are wanted

    [[nodiscard]] QString temporary() const;
    [[nodiscard]] QString marker() const;
};

/// The disk as a download in the terminal sees it: kinder than the window to what is there already. Only an
/// empty marker is taken over; the old package goes in the rename, which a file of the wrong size does not
/// get to; nothing is written through a link; and what did not arrive leaves nothing behind that was not
/// there.
class PackageFiles : public DownloadFiles
{
public:
    /// `told`: the size that the server named, below 0 when it named none.
    PackageFiles(PackageTarget target, std::function<qint64()> told, std::shared_ptr<Workers> workers);
    ~PackageFiles() override { release(); }
    PackageFiles(const PackageFiles&) = delete;
    PackageFiles& operator=(const PackageFiles&) = delete;

    /// Makes the marker and an empty temporary file, in place of what an earlier run of ours has left. False
    /// when something stands there that is not ours, or nothing can be made; problem() says so.
    bool claim();
    /// Takes away what claim() has made, unless the package is there.
    void release();
    [[nodiscard]] bool hasArrived() const { return m_arrived; }
    /// Of the package that has arrived, once, as far as they could be worked out while it came.
    std::optional<PackageSums> takeSums() { return m_sum.finish(m_target.path); }
    /// A sentence about the first thing that failed.
    [[nodiscard]] const QString& problem() const { return m_problem; }
    void note(const QString& problem);

    std::unique_ptr<DownloadFile> makeFile() override;
    bool exists(const QString& path) override;
    void remove(const QString& path) override;
    void rename(const QString& from, const QString& to) override;
    void createEmpty(const QString& path) override;
    void makeFolder(const QString& path) override;

private:
    bool refuse(const QString& problem);
    bool make(const QString& path);
    [[noreturn]] void refuseSize(qint64 size, qint64 wanted, const QString& whose);
    void noteFailure(const QString& path, int code);

    PackageTarget m_target;
    std::function<qint64()> m_told;
    DiskFiles m_disk;
    ArrivalSum m_sum;
    QString m_problem;
    bool m_claimed = false;
    bool m_madeMarker = false;
    bool m_arrived = false;
};

} // namespace varnhold::cli
