#include "platform/HttpResponseReader.h"

#include <QList>

#include <algorithm>

namespace varnhold {

namespace {

constexpr qsizetype longestHead = 64 * 1024;
constexpr qsizetype longestChunkLine = 4096;
// What may stand between the bytes of a body in chunks: so much for each of them, which is room for chunks of
// a single byte, and so much besides.
constexpr qint64 framingPerByte = 16;
constexpr qint64 framingBesides = 64 * 1024;

/// Digits alone; -1 for anything else and for what does not fit.
qint64 wholeNumber(QByteArrayView text, int base)
{
    const bool plain = std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    });
    bool ok = false;
    const qint64 number = plain ? text.toByteArray().toLongLong(&ok, base) : -1;
    return ok ? number : -1;
}

} // namespace

HttpResponseReader::State HttpResponseReader::feed(QByteArrayView bytes)
{
    while (m_state == State::Head && !bytes.isEmpty())
        bytes = takeHead(bytes);
    if (m_state == State::Body && !bytes.isEmpty())
        takeBodyBytes(bytes);
    return m_state;
}

HttpResponseReader::State HttpResponseReader::finish()
{
    if (m_state != State::Complete)
        m_state =
            m_state == State::Body && m_framing == Framing::UntilClose ? State::Complete : State::Broken;
    return m_state;
}

QByteArray HttpResponseReader::header(QByteArrayView name) const
{
    for (const auto& [key, value] : m_headers)
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    return {};
}

/// Adds bytes to the head up to its end; what is left of them.
QByteArrayView HttpResponseReader::takeHead(QByteArrayView bytes)
{
    // The end may have begun in the bytes before: up to three of its four.
    const qsizetype known = m_pending.size();
    m_pending.append(bytes.first(std::min(bytes.size(), longestHead - m_headBytes - known + 1)));
    const qsizetype end = m_pending.indexOf("\r\n\r\n", std::max<qsizetype>(known - 3, 0));
    if (end < 0) {
        if (m_headBytes + m_pending.size() > longestHead)
            m_state = State::Broken;
        return {};
    }
    const qsizetype headLength = end + 4;
    m_headBytes += headLength;
    m_pending.truncate(end);
    parseHead();
    m_pending.clear();
    return bytes.sliced(headLength - known);
}

void HttpResponseReader::parseHead()
{
    const QList<QByteArray> lines = m_pending.split('\n');
    const QList<QByteArray> words = lines.first().simplified().split(' ');
    const qint64 status = words.size() < 2 ? -1 : wholeNumber(words.at(1), 10);
    if (!words.first().startsWith("HTTP/1.") || status < 100 || status > 999) {
        m_state = State::Broken;
        return;
    }
    if (status < 200)
        return; // an interim answer: the real head follows
    m_status = static_cast<int>(status);
    for (const QByteArray& line : lines.sliced(1)) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            m_headers.emplace_back(line.first(colon).trimmed(), line.sliced(colon + 1).trimmed());
    }
    m_state = State::Body;
    const QByteArray length = header("Content-Length");
    if (status == 204 || status == 304) {
        m_state = State::Complete;
    } else if (header("Transfer-Encoding").toLower().endsWith("chunked")) {
        m_framing = Framing::Chunks;
    } else if (!length.isNull()) {
        m_framing = Framing::Length;
        m_length = wholeNumber(length, 10);
        if (m_length < 0 || m_length > m_largestBody)
            m_state = State::Broken;
        else if (m_length == 0)
            m_state = State::Complete;
    }
}

void HttpResponseReader::takeBodyBytes(QByteArrayView bytes)
{
    switch (m_framing) {
    case Framing::Length:
        append(bytes.first(std::min(bytes.size(), m_length - m_received)));
        if (m_received == m_length)
            m_state = State::Complete;
        break;
    case Framing::UntilClose:
        append(bytes);
        break;
    case Framing::Chunks:
        takeChunks(bytes);
        break;
    }
}

void HttpResponseReader::takeChunks(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && m_state == State::Body) {
        if (m_part == Part::ChunkData) {
            const qsizetype taken = std::min<qsizetype>(bytes.size(), m_chunkLeft);
            append(bytes.first(taken));
            bytes = bytes.sliced(taken);
            m_chunkLeft -= taken;
            if (m_chunkLeft == 0)
                m_part = Part::ChunkEnd;
            continue;
        }
        const qsizetype feed = bytes.indexOf('\n');
        const qsizetype taken = feed < 0 ? bytes.size() : feed + 1;
        m_pending.append(bytes.first(taken));
        bytes = bytes.sliced(taken);
        m_framingBytes += taken;
        if (m_pending.size() > longestChunkLine || m_framingBytes > framingLimit())
            m_state = State::Broken;
        else if (feed >= 0)
            takeChunkLine();
    }
}

/// A trailer brings no bytes of the body, and gets what is allowed besides.
qint64 HttpResponseReader::framingLimit() const
{
    return framingBesides + (m_part == Part::Trailer ? 0 : framingPerByte * bodyReceived());
}

void HttpResponseReader::takeChunkLine()
{
    const QByteArray line = std::exchange(m_pending, {}).trimmed();
    switch (m_part) {
    case Part::ChunkSize:
        m_chunkLeft = wholeNumber(line.split(';').first().trimmed(), 16);
        if (m_chunkLeft < 0)
            m_state = State::Broken;
        else
            m_part = m_chunkLeft == 0 ? Part::Trailer : Part::ChunkData;
        if (m_part == Part::Trailer)
            m_framingBytes = 0;
        break;
    case Part::ChunkEnd:
        if (line.isEmpty())
            m_part = Part::ChunkSize;
        else
            m_state = State::Broken;
        break;
    case Part::Trailer:
        if (line.isEmpty())
            m_state = State::Complete;
        break;
    case Part::ChunkData:
        break;
    }
}

void HttpResponseReader::append(QByteArrayView bytes)
{
    if (m_received + bytes.size() > m_largestBody) {
        m_state = State::Broken;
        return;
    }
    m_received += bytes.size();
    m_body.append(bytes);
}

} // namespace varnhold
