#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <utility>
#include <vector>

namespace varnhold {

/// Reads one HTTP/1.x answer from bytes as they come, however they are cut. Everything is bounded: the head
/// to 64 KiB, interim answers before it included; the body to what the caller allows; what stands between and
/// behind its chunks. The body can be taken piece by piece while it comes.
class HttpResponseReader
{
public:
    enum class State {
        Head,     ///< status line and header lines are not whole yet
        Body,     ///< the head is known, the body comes
        Complete, ///< all of it is here; more bytes are ignored
        Broken    ///< no answer, or larger than allowed
    };

    explicit HttpResponseReader(qint64 largestBody) : m_largestBody(largestBody) {}

    State feed(QByteArrayView bytes);
    /// The peer has closed: the end of a body without a length, else a broken answer.
    State finish();

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] int status() const { return m_status; } ///< 0 while the head is not whole
    /// The first header line of that name, trimmed; null when there is none. Names without regard to case.
    [[nodiscard]] QByteArray header(QByteArrayView name) const;
    /// Bytes of the body as its length was told; -1 when it was not.
    [[nodiscard]] qint64 bodyLength() const { return m_length; }
    [[nodiscard]] qint64 bodyReceived() const { return m_received; }
    /// What has come of the body and was not taken yet.
    [[nodiscard]] QByteArray takeBody() { return std::exchange(m_body, {}); }

private:
    enum class Framing { Length, Chunks, UntilClose };
    enum class Part { ChunkSize, ChunkData, ChunkEnd, Trailer };

    QByteArrayView takeHead(QByteArrayView bytes);
    void parseHead();
    void takeBodyBytes(QByteArrayView bytes);
    void takeChunks(QByteArrayView bytes);
    [[nodiscard]] qint64 framingLimit() const;
    void takeChunkLine();
    void append(QByteArrayView bytes);

    State m_state = State::Head;
    Framing m_framing = Framing::UntilClose;
    Part m_part = Part::ChunkSize;
    qint64 m_largestBody;
    int m_status = 0;
    qint64 m_length = -1;
    qint64 m_received = 0;
    qint64 m_chunkLeft = 0;
    qint64 m_headBytes = 0;    ///< of heads that are whole
    qint64 m_framingBytes = 0; ///< of the lines between chunks, or of the trailer
    QByteArray m_pending;      ///< the head, or a line between chunks, as far as it has come
    std::vector<std::pair<QByteArray, QByteArray>> m_headers;
    QByteArray m_body;
};

} // namespace varnhold
