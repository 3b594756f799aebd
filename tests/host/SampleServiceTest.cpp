#include "support/RunningService.h"

#include <gtest/gtest.h>

#include <QTcpSocket>

namespace varnhold::test {
namespace {

using namespace Qt::StringLiterals;

/// What the service sends for these bytes until it closes.
QByteArray exchange(const RunningService& service, const QByteArray& sent)
{
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, service.httpPort());
    socket.write(sent);
    while (socket.waitForReadyRead(5000)) {
    }
    return socket.readAll();
}

TEST(SampleService, Answers)
{
    RunningService service;
    const QByteArray document =
        exchange(service, "GET /tppkg/np/'BLUS30443/BLUS30443-ver.xml HTTP/1.0\r\n\r\n");
    EXPECT_TRUE(document.startsWith("HTTP/1.1 200 OK\r\n")) << document.constData();
    EXPECT_TRUE(document.contains("<package version=\"01.01\" size=\"90000\" sha1sum=\""));
    EXPECT_TRUE(document.endsWith("</titlepatch>\n"));
}

} // namespace
} // namespace varnhold::test
