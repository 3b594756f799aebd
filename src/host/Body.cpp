#include "host/Body.h"

#include <algorithm>

namespace varnhold::host {

namespace {

constexpr int numberWidth = 10;

/// Copies what of `piece`, standing at `pieceStart` of the whole, falls into [offset, offset + out.size()).
void copyOverlap(const QByteArray& piece, qint64 pieceStart, qint64 offset, std::span<char> out)
{
    const qint64 from = std::max(offset, pieceStart);
    const qint64 to = std::min(offset + std::ssize(out), pieceStart + piece.size());
    if (from < to)
        std::copy_n(piece.constData() + (from - pieceStart), to - from, out.data() + (from - offset));
}

} // namespace

Body Body::fromBytes(const QByteArray& bytes)
{
    return {bytes.size(), [bytes](qint64 offset, std::span<char> out) {
                std::copy_n(bytes.constData() + offset, out.size(), out.data());
            }};
}

Body Body::fromRows(const QByteArray& head, const QByteArray& row, qint64 count, const QByteArray& tail)
{
    const qsizetype numberAt = row.indexOf(QByteArray(numberWidth, '#'));
    const qint64 rowsEnd = head.size() + row.size() * count;
    const auto read = [=](qint64 offset, std::span<char> out) {
        copyOverlap(head, 0, offset, out);
        const qint64 end = std::min(offset + std::ssize(out), rowsEnd);
        QByteArray numbered = row;
        for (qint64 i = std::max<qint64>(offset - head.size(), 0) / row.size();; ++i) {
            const qint64 start = head.size() + i * row.size();
            if (start >= end)
                break;
            for (qint64 number = i + 1, at = numberAt + numberWidth - 1; at >= numberAt && numberAt >= 0;
                 --at, number /= 10)
                numbered[at] = static_cast<char>('0' + number % 10);
            copyOverlap(numbered, start, offset, out);
        }
        copyOverlap(tail, rowsEnd, offset, out);
    };
    return {rowsEnd + tail.size(), read};
}

Body Body::fromEndless(const QByteArray& piece)
{
    return {endless, [piece](qint64 offset, std::span<char> out) {
                for (std::size_t i = 0; i < out.size(); ++i)
                    out[i] = piece.at((offset + static_cast<qint64>(i)) % piece.size());
            }};
}

} // namespace varnhold::host
