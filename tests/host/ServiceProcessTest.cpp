#include "platform/RunTimeError.h"
#include "platform/SampleServiceProcess.h"
#include "state/SampleHosts.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>

namespace varnhold::test {
namespace {

using namespace Qt::StringLiterals;

bool answers(const QString& authority)
{
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, authority.section(u':', 1).toUShort());
    return socket.waitForConnected(2000);
}

QString script(const QTemporaryDir& folder, const QByteArray& body)
{
    QFile file(folder.filePath(u"varnhold-host"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + body + "\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
}

TEST(SampleServiceProcess, ServesAllHostsUntilItsObjectGoes)
{
    const QTemporaryDir folder;
    Hosts hosts;
    {
        SampleServiceProcess service;
        hosts = hostsInUse(folder.filePath(u"hosts.ini"_s), service);
        EXPECT_TRUE(hosts.sample);
        for (const HostEntry& server : hosts.servers)
            EXPECT_TRUE(answers(server.authority));
        EXPECT_NE(hosts.servers[0].authority, hosts.servers[1].authority);
        EXPECT_TRUE(QFileInfo::exists(hosts.servers[0].certificateFile));
    }
    EXPECT_FALSE(answers(hosts.update.authority));
    EXPECT_FALSE(QFileInfo::exists(hosts.servers[0].certificateFile));
}

TEST(SampleServiceProcess, ConfiguredHostsNeedNoService)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"hosts.ini"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Servers]\r\n2=updates.example:8080\r\n");
    file.close();
    SampleServiceProcess service;
    EXPECT_EQ(hostsInUse(file.fileName(), service).servers[1].authority, u"updates.example:8080"_s);
    EXPECT_FALSE(service.isRunning());
}

TEST(SampleServiceProcess, EndsWithItsParentEvenWhenThatIsKilled)
{
    // The shell stands for the program: it starts the service with its own process number and waits.
    QProcess parent;
    parent.start(u"/bin/sh"_s, {u"-c"_s, u"\"$0\" --parent $$ </dev/null & read line; wait"_s,
                                SampleServiceProcess::findProgram()});
    while (!parent.canReadLine())
        ASSERT_TRUE(parent.waitForReadyRead(10000));
    const QByteArray line = parent.readLine();
    const QString port = QString::fromLatin1(line).section(u"\"http\":"_s, 1).section(u',', 0, 0);
    ASSERT_TRUE(answers(u"127.0.0.1:"_s + port)) << line.constData();
    ::kill(static_cast<pid_t>(parent.processId()), SIGKILL);
    parent.waitForFinished();
    const QDeadlineTimer deadline(5000);
    while (answers(u"127.0.0.1:"_s + port) && !deadline.hasExpired())
        QThread::msleep(5);
    EXPECT_FALSE(deadline.hasExpired());
}

TEST(SampleServiceProcess, FailuresToStartAreSentences)
{
    const QTemporaryDir folder;
    const struct
    {
        QString program;
        int number;
        QString piece;
    } cases[] = {
        {QString(), errors::fileNotFound, u"not installed"_s},
        {folder.filePath(u"missing"_s), errors::pathFileAccess, u"did not start: "_s},
        {script(folder, "echo 'varnhold-host: no port is free.' >&2; exit 1"), errors::pathFileAccess,
         u"no port is free."_s},
    };
    for (const auto& row : cases) {
        SampleServiceProcess service;
        try {
            service.start(row.program);
            ADD_FAILURE() << qPrintable(row.program);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), row.number);
            EXPECT_TRUE(error.description().contains(row.piece)) << qPrintable(error.description());
        }
    }
    SampleServiceProcess service;
    EXPECT_THROW(service.start(script(folder, "echo hello; sleep 60")), RunTimeError);
}

} // namespace
} // namespace varnhold::test
