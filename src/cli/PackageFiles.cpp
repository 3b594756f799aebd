#include "cli/PackageFiles.h"

#include "platform/RunTimeError.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

enum class Stands { Nothing, EmptyFile, Something };

/// What the name itself stands for; a link is something.
Stands whatStandsAt(const QString& path)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
        return errno == ENOENT ? Stands::Nothing : Stands::Something;
    return S_ISREG(status.st_mode) && status.st_size == 0 ? Stands::EmptyFile : Stands::Something;
}

bool isRegular(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISREG(status.st_mode);
}

QString folderOf(const QString& path)
{
    return QFileInfo(path).path();
}

/// The disk's own file, whose failing writes are told to the owner as well, and its growth to the sum, if
/// any.
class ToldFile : public DownloadFile
{
public:
    ToldFile(std::unique_ptr<DownloadFile> file, ArrivalSum* sum,
             std::function<void(const RunTimeError&)> failed)
        : m_file(std::move(file)), m_sum(sum), m_failed(std::move(failed))
    {
    }

    void open(const QString& path) override
    {
        telling([&] { m_file->open(path); });
        if (m_sum)
            m_sum->begin(path);
    }
    [[nodiscard]] bool isOpen() const override { return m_file->isOpen(); }
    void close() override { m_file->close(); }
    void write(QByteArrayView bytes) override
    {
        telling([&] { m_file->write(bytes); });
        if (m_sum)
            m_sum->grow(bytes.size());
    }
    void appendFrom(Socket& socket, const QByteArray& except,
                    std::function<void(const Appended&)> done) override
    {
        telling([&] {
            m_file->appendFrom(socket, except, [this, done = std::move(done)](const Appended& appended) {
                if (appended.failure)
                    m_failed(*appended.failure);
                else if (m_sum)
                    m_sum->grow(appended.bytes);
                done(appended);
            });
        });
    }

private:
    template <typename Action> void telling(Action&& action)
    {
        try {
            action();
        } catch (const RunTimeError& error) {
            m_failed(error);
            throw;
        }
    }

    std::unique_ptr<DownloadFile> m_file;
    ArrivalSum* m_sum;
    std::function<void(const RunTimeError&)> m_failed;
};

} // namespace

QString PackageTarget::temporary() const
{
    return QString(path).replace(u".pkg"_s, u".temp"_s);
}

QString PackageTarget::marker() const
{
    return QString(path).replace(u".pkg"_s, u".txt"_s);
}

PackageFiles::PackageFiles(PackageTarget target, std::function<qint64()> told,
                           std::shared_ptr<Workers> workers)
    : m_target(std::move(target)), m_told(std::move(told)), m_sum(std::move(workers))
{
}

void PackageFiles::note(const QString& problem)
{
    if (m_problem.isEmpty())
        m_problem = problem;
}

bool PackageFiles::refuse(const QString& problem)
{
    note(problem);
    return false;
}

bool PackageFiles::claim()
{
    const QString marker = m_target.marker();
    const QString temporary = m_target.temporary();
    const Stands atMarker = whatStandsAt(marker);
    if (atMarker == Stands::Something)
        return refuse(
            u"\"%1\" would be the package's marker, and is no empty file; it is in the way."_s.arg(marker));
    if (whatStandsAt(temporary) != Stands::Nothing) {
        // Beside its empty marker it is what a download leaves that was ended in the middle.
        if (atMarker != Stands::EmptyFile || !isRegular(temporary))
            return refuse(u"\"%1\" is in the way, and is no rest of an earlier download."_s.arg(temporary));
        if (::unlink(QFile::encodeName(temporary).constData()) != 0) {
            noteFailure(temporary, errno);
            return false;
        }
    }
    m_madeMarker = atMarker == Stands::Nothing && make(marker);
    m_claimed = m_problem.isEmpty() && make(temporary);
    if (!m_claimed)
        release();
    return m_claimed;
}

bool PackageFiles::make(const QString& path)
{
    // With O_EXCL no link is followed.
    const int file =
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0)
        noteFailure(path, errno);
    else
        ::close(file);
    return file >= 0;
}

void PackageFiles::noteFailure(const QString& path, int code)
{
    switch (code) {
    case EACCES:
    case EPERM:
    case EROFS:
        note(u"The folder \"%1\" cannot be written to; name another with --to."_s.arg(folderOf(path)));
        break;
    case ENOSPC:
    case EDQUOT:
        note(u"The disk is full: there is no room for \"%1\"."_s.arg(path));
        break;
    default:
        note(u"\"%1\" cannot be written: %2."_s.arg(path, qt_error_string(code)));
        break;
    }
}

void PackageFiles::release()
{
    if (m_arrived)
        return;
    if (std::exchange(m_claimed, false))
        ::unlink(QFile::encodeName(m_target.temporary()).constData());
    if (std::exchange(m_madeMarker, false))
        ::unlink(QFile::encodeName(m_target.marker()).constData());
}

std::unique_ptr<DownloadFile> PackageFiles::makeFile()
{
    ArrivalSum* sum = m_target.summed ? &m_sum : nullptr;
    return std::make_unique<ToldFile>(m_disk.makeFile(), sum, [this](const RunTimeError& error) {
        const QString temporary = m_target.temporary();
        if (error.number() == errors::diskFull)
            noteFailure(temporary, ENOSPC);
        else
            note(u"\"%1\" cannot be written: %2."_s.arg(temporary, error.description()));
    });
}

/// The old package stays until the new one takes its place: a download deletes what it finds.
bool PackageFiles::exists(const QString& path)
{
    return path != m_target.path && m_disk.exists(path);
}

/// What claim() has made goes with release() alone, and nothing else does.
void PackageFiles::remove(const QString& /*path*/) {}

void PackageFiles::refuseSize(qint64 size, qint64 wanted, const QString& whose)
{
    note(u"%1: %2 bytes came, and the %3 says %4; nothing of it is kept."_s.arg(m_target.path)
             .arg(size)
             .arg(whose)
             .arg(wanted));
    throw RunTimeError(errors::pathFileAccess);
}

void PackageFiles::rename(const QString& from, const QString& to)
{
    const qint64 size = QFileInfo(from).size();
    const qint64 told = m_told();
    if (m_target.size && size != *m_target.size)
        refuseSize(size, *m_target.size, u"document"_s);
    if (!m_target.size && told >= 0 && size != told)
        refuseSize(size, told, u"server"_s);
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (m_target.overwrite) {
        if (::rename(source.constData(), target.constData()) != 0) {
            noteFailure(to, errno);
            throw RunTimeError(errors::pathFileAccess);
        }
    } else {
        try {
            m_disk.rename(from, to);
        } catch (const RunTimeError& error) {
            note(error.number() == errors::fileExists
                     ? u"%1 has come there meanwhile; --overwrite replaces it."_s.arg(to)
                     : u"\"%1\" cannot be written: %2."_s.arg(to, error.description()));
            throw;
        }
    }
    m_arrived = true;
}

/// claim() has made the marker.
void PackageFiles::createEmpty(const QString& /*path*/) {}

void PackageFiles::makeFolder(const QString& path)
{
    m_disk.makeFolder(path);
}

} // namespace varnhold::cli
