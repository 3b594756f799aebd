// Reading damaged HTTP answers: whatever comes, the same however it is cut, and within bounds.

#include "fuzz/FuzzTarget.h"
#include "platform/HttpResponseReader.h"

namespace varnhold::test {

namespace {

constexpr qint64 largestBody = 4096;

struct Outcome
{
    HttpResponseReader::State state;
    int status;
    qint64 length;
    QByteArray location;
    QByteArray body;

    bool operator==(const Outcome&) const = default;
};

Outcome read(const QByteArray& input, qsizetype piece)
{
    HttpResponseReader reader(largestBody);
    for (qsizetype at = 0; at < input.size(); at += piece)
        reader.feed(QByteArrayView(input).sliced(at, std::min(piece, input.size() - at)));
    reader.finish();
    return {reader.state(), reader.status(), reader.bodyLength(), reader.header("Location"),
            reader.takeBody()};
}

} // namespace

void check(const QByteArray& input)
{
    using State = HttpResponseReader::State;
    const Outcome whole = read(input, std::max<qsizetype>(input.size(), 1));
    require(whole.state == State::Complete || whole.state == State::Broken, "no end", input);
    require(whole.body.size() <= std::min<qsizetype>(largestBody, input.size()), "a larger body", input);
    require(whole.state == State::Broken || (whole.status >= 200 && whole.status <= 999), "odd status",
            input);
    for (const qsizetype piece : {1, 2, 7, 64}) {
        Outcome cut = read(input, piece);
        // Of what is broken, the part that came before the break may be longer.
        if (whole.state == State::Broken)
            cut.body = whole.body;
        require(cut == whole, "reads otherwise in pieces", input);
    }
}

const std::vector<QByteArray>& pieces()
{
    static const std::vector<QByteArray> all =
        piecesOf("HTTP/1.1 200 OK\r\n|HTTP/1.1 100 Continue\r\n\r\n|HTTP/1.0 302 Found\r\n|"
                 "HTTP/1.1 304 x\r\n|\r\n|\r\n\r\n|\n|\r|:| |Content-Length: |Content-Length: 5\r\n|"
                 "Content-Length: -1\r\n|Content-Length: 4097\r\n|"
                 "Content-Length: 99999999999999999999\r\n|Transfer-Encoding: chunked\r\n|"
                 "Transfer-Encoding: gzip, chunked\r\n|Location: /x\r\n|0\r\n|0\r\n\r\n|5\r\nhello\r\n|"
                 "1;a=b\r\nx\r\n|fff\r\n|7fffffffffffffff\r\n|ffffffffffffffff\r\n",
                 {QByteArray(1, '\0'), QByteArray(5000, 'x'), QByteArray("A: b\r\n").repeated(2000)});
    return all;
}

} // namespace varnhold::test
