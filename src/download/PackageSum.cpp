#include "download/PackageSum.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace varnhold {

namespace {

constexpr qint64 tailSize = 32;
constexpr std::size_t bufferSize = 256 * 1024; // stays in the processor's cache

} // namespace

bool PackageSum::add(int file, qint64 end)
{
    m_buffer.resize(bufferSize);
    while (!m_failed && m_position < end) {
        const auto wanted = std::min(static_cast<std::size_t>(end - m_position), m_buffer.size());
        const ssize_t count = ::pread(file, m_buffer.data(), wanted, m_position);
        if (count < 0 && errno == EINTR)
            continue;
        m_failed = count <= 0;
        if (m_failed)
            break;
        m_sum.add({m_buffer.data(), count});
        m_position += count;
    }
    return !m_failed;
}

bool PackageSum::readOn(int file, qint64 end)
{
    return add(file, end - tailSize);
}

std::optional<PackageSums> PackageSum::finish(int file, qint64 size)
{
    PackageSums sums;
    if (!readOn(file, size))
        return std::nullopt;
    if (size >= tailSize)
        sums.allButTail = m_sum.result();
    if (!add(file, size))
        return std::nullopt;
    sums.whole = m_sum.result();
    if (sums.whole.isEmpty())
        return std::nullopt;
    return sums;
}

} // namespace varnhold
