#pragma once

#include "platform/Sha1.h"

#include <QByteArray>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace varnhold {

/// What the sum in a document may be meant for, in small hexadecimal digits: packages carry a sum of their
/// own in their last 32 bytes.
struct PackageSums
{
    QByteArray whole;
    QByteArray allButTail; ///< empty for a file that is shorter than that
};

/// Reads a file once for both sums, which may be longer by the next call. Not for two threads at once.
class PackageSum
{
public:
    /// Adds what the file holds up to the byte `end`, but for the 32 before it. False when it cannot be read;
    /// nothing comes of the sums then.
    bool readOn(int file, qint64 end);
    /// Up to the file's end. No value when it cannot be read.
    std::optional<PackageSums> finish(int file, qint64 size);
    [[nodiscard]] qint64 position() const { return m_position; }

private:
    bool add(int file, qint64 end);

    Sha1 m_sum;
    qint64 m_position = 0;
    bool m_failed = false;
    std::vector<char> m_buffer;
};

} // namespace varnhold
