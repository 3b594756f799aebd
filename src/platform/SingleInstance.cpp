#include "platform/SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView reply = "here\n";

/// The session's folder for such things; the system's temporary folder, with the user in the name, where
/// there is none.
QString claimName(const QString& root)
{
    const QString canonical = QFileInfo(root).canonicalFilePath();
    const QByteArray hash = QCryptographicHash::hash((canonical.isEmpty() ? root : canonical).toUtf8(),
                                                     QCryptographicHash::Sha256)
                                .toHex()
                                .first(16);
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString folder = QFileInfo(session).isDir() ? session : QDir::tempPath();
    return u"%1/varnhold-%2-%3"_s.arg(folder).arg(::getuid()).arg(QString::fromLatin1(hash));
}

} // namespace

SingleInstance::SingleInstance(const QString& root, QObject* parent)
    : QObject(parent), m_name(claimName(root))
{
    // The kernel drops this lock with its holder, so that a crash leaves no claim behind.
    m_lock = ::open(QFile::encodeName(m_name + u".lock"_s).constData(),
                    O_CREAT | O_RDWR | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_lock < 0)
        return;
    m_first = ::flock(m_lock, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (m_first)
        listen();
}

SingleInstance::~SingleInstance()
{
    delete m_server; // before the lock goes, since the next holder takes the socket's name over
    if (m_lock >= 0)
        ::close(m_lock);
}

void SingleInstance::listen()
{
    const QString name = m_name + u".socket"_s;
    QLocalServer::removeServer(name); // left by a holder that crashed
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            socket->write(reply.data(), reply.size());
            socket->flush();
            socket->disconnectFromServer();
        }
        Q_EMIT activationRequested();
    });
    m_server->listen(name);
}

bool SingleInstance::askFirst(int timeoutMilliseconds) const
{
    const QDeadlineTimer deadline(timeoutMilliseconds);
    const auto left = [&] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(m_name + u".socket"_s, QIODevice::ReadOnly);
    if (!socket.waitForConnected(left()))
        return false;
    while (socket.bytesAvailable() < reply.size()) {
        if (!socket.waitForReadyRead(left()))
            return false;
    }
    return socket.read(reply.size()) == reply;
}

} // namespace varnhold
