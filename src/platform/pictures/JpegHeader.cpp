#include "platform/pictures/JpegHeader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

namespace varnhold {

namespace {

enum Marker : unsigned {
    FirstKnown = 0xC0, // those below are none: a decoder that meets one looks on behind it
    Baseline = 0xC0,
    Extended = 0xC1,
    Progressive = 0xC2,
    FirstRestart = 0xD0,
    LastRestart = 0xD7,
    StartOfImage = 0xD8,
    EndOfImage = 0xD9,
    StartOfScan = 0xDA,
};

class Walk
{
public:
    explicit Walk(QByteArrayView bytes) : m_bytes(bytes) {}

    /// The next marker, garbage skipped, data of a scan included; none at the end of the bytes.
    std::optional<unsigned> nextMarker()
    {
        while (m_at < m_bytes.size()) {
            const void* found =
                std::memchr(m_bytes.data() + m_at, 0xFF, static_cast<std::size_t>(m_bytes.size() - m_at));
            if (found == nullptr)
                break;
            m_at = static_cast<const char*>(found) - m_bytes.data();
            while (m_at < m_bytes.size() && byteAt(m_at) == 0xFF)
                ++m_at;
            if (m_at == m_bytes.size())
                break;
            const unsigned marker = byteAt(m_at++);
            const bool standsAlone =
                marker < FirstKnown || (marker >= FirstRestart && marker <= StartOfImage);
            if (!standsAlone)
                return marker;
        }
        m_at = m_bytes.size();
        return std::nullopt;
    }

    /// What stands behind a marker, and goes behind it; none where not all of it is there. A length too short
    /// for itself counts as empty: decoders pass over it.
    std::optional<QByteArrayView> takeSegment()
    {
        constexpr int lengthBytes = 2;
        if (m_bytes.size() - m_at < lengthBytes)
            return std::nullopt;
        const int length = std::max(wordAt(m_at), lengthBytes);
        if (length > m_bytes.size() - m_at)
            return std::nullopt;
        const QByteArrayView segment = m_bytes.sliced(m_at + lengthBytes, length - lengthBytes);
        m_at += length;
        return segment;
    }

private:
    [[nodiscard]] unsigned byteAt(qsizetype at) const { return static_cast<unsigned char>(m_bytes[at]); }
    [[nodiscard]] int wordAt(qsizetype at) const
    {
        return static_cast<int>(byteAt(at) << 8U | byteAt(at + 1));
    }

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

struct Frame
{
    QSize size;
    int components = 0;
    bool isProgressive = false;
    qint64 coefficientBytes = 0;
};

int byteOf(QByteArrayView bytes, qsizetype at)
{
    return static_cast<unsigned char>(bytes[at]);
}

std::optional<Frame> frameOf(QByteArrayView segment, bool isProgressive)
{
    constexpr qsizetype fixedPart = 6;
    constexpr qsizetype componentPart = 3;
    constexpr int blockSide = 8;
    constexpr qint64 blockBytes = 128;
    if (segment.size() < fixedPart)
        return std::nullopt;
    Frame frame;
    frame.isProgressive = isProgressive;
    frame.size = {byteOf(segment, 3) << 8 | byteOf(segment, 4), byteOf(segment, 1) << 8 | byteOf(segment, 2)};
    frame.components = byteOf(segment, 5);
    const bool isKnown = frame.components == 1 || frame.components == 3 || frame.components == 4;
    if (frame.size.isEmpty() || !isKnown || segment.size() < fixedPart + componentPart * frame.components)
        return std::nullopt;
    constexpr int mostSampling = 4;
    std::array<QSize, 4> sampling;
    QSize most(1, 1);
    for (int i = 0; i < frame.components; ++i) {
        const int both = byteOf(segment, fixedPart + componentPart * i + 1);
        const QSize one(both >> 4, both & 0xF);
        if (one.isEmpty() || one.width() > mostSampling || one.height() > mostSampling)
            return std::nullopt;
        sampling.at(static_cast<std::size_t>(i)) = one;
        most = most.expandedTo(one);
    }
    const auto units = [](int length, int unit) { return qint64{(length + unit - 1) / unit}; };
    const qint64 blocks = units(frame.size.width(), blockSide * most.width()) *
                          units(frame.size.height(), blockSide * most.height());
    for (int i = 0; i < frame.components; ++i) {
        const QSize& one = sampling.at(static_cast<std::size_t>(i));
        frame.coefficientBytes += blocks * one.width() * one.height() * blockBytes;
    }
    return frame;
}

} // namespace

JpegHeader jpegHeader(QByteArrayView bytes, int countTo, bool toEnd)
{
    JpegHeader header;
    std::optional<Frame> frame;
    Walk walk(bytes);
    while (const std::optional<unsigned> marker = walk.nextMarker()) {
        if (*marker == EndOfImage) {
            header.hasEnd = header.scans > 0;
            break;
        }
        const std::optional<QByteArrayView> segment = walk.takeSegment();
        if (!segment)
            break;
        const bool isFrame = *marker == Baseline || *marker == Extended || *marker == Progressive;
        if (isFrame && !frame) {
            frame = frameOf(*segment, *marker == Progressive);
            if (!frame)
                return {};
            header.size = frame->size;
            header.isGray = frame->components == 1;
        }
        if (*marker != StartOfScan)
            continue;
        if (!frame)
            return {};
        if (++header.scans == 1) {
            header.inOnePass =
                !frame->isProgressive && !segment->isEmpty() && byteOf(*segment, 0) == frame->components;
            header.heldBytes = header.inOnePass ? 0 : frame->coefficientBytes;
        }
        if (!toEnd && (header.inOnePass || header.scans > countTo))
            break;
    }
    return header;
}

} // namespace varnhold
