#pragma once

#include "download/PackageSum.h"
#include "platform/Workers.h"

#include <QString>

#include <memory>
#include <optional>

namespace varnhold {

/// The sums of a file that is being written, worked out on a worker while it grows, from what the system
/// still has in memory. The file is new and grows at its end alone; of any other nothing is told, and it is
/// to be read afterwards.
class ArrivalSum
{
public:
    explicit ArrivalSum(std::shared_ptr<Workers> workers) : m_order(std::move(workers)) {}
    ArrivalSum(const ArrivalSum&) = delete;
    ArrivalSum& operator=(const ArrivalSum&) = delete;
    ~ArrivalSum();

    /// Once, when the file has been opened.
    void begin(const QString& path);
    /// So many bytes are there now that were not.
    void grow(qint64 bytes);
    /// When all is there, perhaps under another name: works out what is left, on this thread. No value when
    /// the path's file is not the one that grew here, byte for byte as far as its size tells, or cannot be
    /// read.
    std::optional<PackageSums> finish(const QString& path);

private:
    void goOn();

    int m_file = -1; ///< none: no sum of this one
    qint64 m_size = 0;
    PackageSum m_sum; ///< the worker's while an order is under way
    WorkOrder m_order;
};

} // namespace varnhold
