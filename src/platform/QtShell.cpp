#include "platform/QtShell.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QUrl>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

QUrl urlOf(const QString& target)
{
    if (target.startsWith(u'/'))
        return QUrl::fromLocalFile(target);
    // An address without a scheme, as people write it.
    return target.startsWith("www."_L1, Qt::CaseInsensitive) ? QUrl(u"http://"_s + target) : QUrl(target);
}

} // namespace

void QtShell::open(const QString& target)
{
    QDesktopServices::openUrl(urlOf(target));
}

void QtShell::explore(const QString& folder)
{
    // org.freedesktop.FileManager1, ShowFolders(URIs, startup id); ShowItems would open the parent instead.
    auto call =
        QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
                                       u"org.freedesktop.FileManager1"_s, u"ShowFolders"_s);
    call.setArguments({QStringList{QUrl::fromLocalFile(folder).toString(QUrl::FullyEncoded)}, QString()});
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, folder](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        if (QDBusPendingReply<>(*done).isError())
            open(folder);
    });
}

} // namespace varnhold
