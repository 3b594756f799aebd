#include "platform/HttpResponseReader.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

namespace {

using State = HttpResponseReader::State;

constexpr qint64 largest = 100;

struct Case
{
    const char* name;
    QByteArray bytes;
    State atEnd;  ///< when all bytes are read
    State closed; ///< after the peer has closed
    QByteArray body;
};

const Case cases[] = {
    {"length", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello", State::Complete, State::Complete,
     "hello"},
    {"more than its length", "HTTP/1.1 200 OK\r\ncontent-length:5\r\n\r\nhello!!", State::Complete,
     State::Complete, "hello"},
    {"less than its length", "HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\nhello", State::Body, State::Broken,
     "hello"},
    {"no body", "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", State::Complete, State::Complete, ""},
    {"until the peer closes", "HTTP/1.0 200\r\n\r\nhello", State::Body, State::Complete, "hello"},
    {"no lines at all", "HTTP/1.0 404 Not Found\r\n\r\n", State::Body, State::Complete, ""},
    {"nothing may follow", "HTTP/1.1 304 Not Modified\r\nContent-Length: 9\r\n\r\n", State::Complete,
     State::Complete, ""},
    {"interim answers first",
     "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 103 Hints\r\nContent-Length: 2\r\n\r\n"
     "HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\nx",
     State::Complete, State::Complete, "x"},
    {"chunks",
     "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5;a=b\r\nhello\r\nA \r\n0123456789\r\n0\r\n"
     "Sum: 1\r\n\r\n",
     State::Complete, State::Complete, "hello0123456789"},
    {"chunks without an end", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhello\r\n",
     State::Body, State::Broken, "hello"},
    {"chunk of no size", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n", State::Broken,
     State::Broken, ""},
    {"chunk longer than it says", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nabc\r\n",
     State::Broken, State::Broken, "ab"},
    {"no answer", "SSH-2.0-server\r\n\r\n", State::Broken, State::Broken, ""},
    {"no status", "HTTP/1.1 OK\r\n\r\n", State::Broken, State::Broken, ""},
    {"no head yet", "HTTP/1.1 200 OK\r\nServer: x\r\n", State::Head, State::Broken, ""},
    {"nothing", "", State::Head, State::Broken, ""},
    {"length that is none", "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\n", State::Broken, State::Broken,
     ""},
    {"length over the limit", "HTTP/1.1 200 OK\r\nContent-Length: 101\r\n\r\n", State::Broken, State::Broken,
     ""},
    {"body over the limit", "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(101, 'x'), State::Broken, State::Broken,
     ""},
    {"endless interim answers", QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(3000), State::Broken,
     State::Broken, ""},
    {"endless trailer",
     "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n" + QByteArray("A: b\r\n").repeated(12000),
     State::Broken, State::Broken, ""},
    {"chunks that are mostly extensions",
     "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" +
         ("1;" + QByteArray(4000, 'e') + "\r\nx\r\n").repeated(20),
     State::Broken, State::Broken, ""},
    {"chunks of one byte",
     "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + QByteArray("1\r\nx\r\n").repeated(100) +
         "0\r\n\r\n",
     State::Complete, State::Complete, QByteArray(100, 'x')},
    {"endless line", "HTTP/1.1 200 OK\r\nA: " + QByteArray(70000, 'x'), State::Broken, State::Broken, ""},
};

} // namespace

TEST(HttpResponseReader, ReadsEveryAnswerHoweverItIsCut)
{
    for (const Case& one : cases) {
        const qsizetype cuts = std::min<qsizetype>(one.bytes.size(), 200);
        for (qsizetype cut = 0; cut <= cuts; ++cut) {
            SCOPED_TRACE(testing::Message() << one.name << ", cut at " << cut);
            HttpResponseReader reader(largest);
            reader.feed(QByteArrayView(one.bytes).first(cut));
            EXPECT_EQ(reader.feed(QByteArrayView(one.bytes).sliced(cut)), one.atEnd);
            EXPECT_EQ(reader.finish(), one.closed);
            if (one.body.size() <= largest && one.closed == State::Complete) {
                EXPECT_EQ(reader.takeBody(), one.body);
            }
        }
        HttpResponseReader bytewise(largest);
        for (const char byte : one.bytes)
            bytewise.feed(QByteArrayView(&byte, 1));
        EXPECT_EQ(bytewise.state(), one.atEnd) << one.name;
    }
}

TEST(HttpResponseReader, TellsStatusAndHeaders)
{
    HttpResponseReader reader(largest);
    reader.feed("HTTP/1.1 302 Found\r\nLOCATION:  /new \r\nlocation: /other\r\nno colon\r\nEmpty:\r\n\r\n");
    EXPECT_EQ(reader.status(), 302);
    EXPECT_EQ(reader.header("Location"), "/new");
    EXPECT_TRUE(reader.header("Missing").isNull());
    EXPECT_FALSE(reader.header("Empty").isNull());
    EXPECT_EQ(reader.bodyLength(), -1);
}

} // namespace varnhold::test
