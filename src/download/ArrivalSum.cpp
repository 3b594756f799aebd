#include "download/ArrivalSum.h"

#include "platform/ReadFile.h"
#include "platform/RunTimeError.h"

#include <QFile>

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace varnhold {

namespace {

// A few milliseconds' work: the end waits for it.
constexpr qint64 orderSize = qint64{8} << 20;

} // namespace

ArrivalSum::~ArrivalSum()
{
    m_order.cancel(); // before the file goes
    if (m_file >= 0)
        ::close(m_file);
}

void ArrivalSum::begin(const QString& path)
{
    try {
        m_file = openRegularFile(path);
    } catch (const RunTimeError&) {
        return; // whoever reads it afterwards tells why
    }
    struct stat status = {};
    if (::fstat(m_file, &status) != 0 || status.st_size != 0)
        ::close(std::exchange(m_file, -1));
}

void ArrivalSum::grow(qint64 bytes)
{
    m_size += bytes;
    goOn();
}

void ArrivalSum::goOn()
{
    if (m_file < 0 || m_order.isUnderWay())
        return;
    const qint64 end = std::min(m_size, m_sum.position() + orderSize);
    m_order.start(
        [this, end] {
            const qint64 before = m_sum.position();
            return m_sum.readOn(m_file, end) && m_sum.position() > before;
        },
        [this](bool advanced) {
            if (advanced && m_sum.position() < m_size)
                goOn();
        });
}

std::optional<PackageSums> ArrivalSum::finish(const QString& path)
{
    m_order.cancel();
    struct stat ours = {};
    struct stat theirs = {};
    if (m_file < 0 || ::fstat(m_file, &ours) != 0 ||
        ::stat(QFile::encodeName(path).constData(), &theirs) != 0 || ours.st_dev != theirs.st_dev ||
        ours.st_ino != theirs.st_ino || ours.st_size != m_size)
        return std::nullopt;
    return m_sum.finish(m_file, m_size);
}

} // namespace varnhold
