#include "platform/QtShell.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

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

void QtShell::openLink(const QString& link, std::function<void()> onFailure)
{
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    if (opener.isEmpty()) {
        if (!QDesktopServices::openUrl(urlOf(link)))
            onFailure();
        return;
    }
    // It may be the browser's parent, and its end the browser's: so it has no owner here, and outlives us.
    auto* const program = new QProcess;
    program->setStandardInputFile(QProcess::nullDevice());
    program->setStandardOutputFile(QProcess::nullDevice());
    program->setStandardErrorFile(QProcess::nullDevice());
    const auto end = [program, failed = std::move(onFailure)](bool isOpen) {
        program->deleteLater();
        if (!isOpen)
            failed();
    };
    connect(program, &QProcess::finished, this, [end](int code) { end(code == 0); });
    connect(program, &QProcess::errorOccurred, this, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end(false);
    });
    program->start(opener, {urlOf(link).toString(QUrl::FullyEncoded)});
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
