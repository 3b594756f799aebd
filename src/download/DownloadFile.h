#pragma once

#include "platform/RunTimeError.h"

#include <QByteArrayView>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace varnhold {

class Socket;

/// The disk as a download sees it: one temporary file and the names beside it. Failures are RunTimeErrors
/// (52 not open, 53, 61 disk full, 70, 75, 76), so that a test can let the Nth call fail.
class DownloadFile
{
public:
    virtual ~DownloadFile() = default;
    /// Opens for binary access: makes the file when missing, neither truncates nor appends; the position is
    /// the file's start.
    virtual void open(const QString& path) = 0;
    [[nodiscard]] virtual bool isOpen() const = 0;
    virtual void close() = 0;
    /// At the current position, which moves on.
    virtual void write(QByteArrayView bytes) = 0;

    struct Appended
    {
        qint64 bytes = 0;
        std::optional<RunTimeError> failure;
    };
    /// Inside the socket's dataArrival only. Has the waiting chunk, and those that come close behind it,
    /// moved to the end of the file, whatever the position is, which then stands behind them; but nothing of
    /// a later chunk that begins with `except`. `done` may be called before this returns; not at all when the
    /// socket is closed first. Until then the file is to stay open.
    virtual void appendFrom(Socket& socket, const QByteArray& except,
                            std::function<void(const Appended&)> done) = 0;
};

/// File operations on names, as the download's steps need them; same errors.
class DownloadFiles
{
public:
    virtual ~DownloadFiles() = default;
    virtual std::unique_ptr<DownloadFile> makeFile() = 0;
    virtual bool exists(const QString& path) = 0;
    virtual void remove(const QString& path) = 0;
    virtual void rename(const QString& from, const QString& to) = 0;
    /// Creates or truncates an empty file.
    virtual void createEmpty(const QString& path) = 0;
    virtual void makeFolder(const QString& path) = 0;
};

} // namespace varnhold
