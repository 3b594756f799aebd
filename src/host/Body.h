#pragma once

#include <QByteArray>

#include <functional>
#include <limits>
#include <span>

namespace varnhold::host {

/// The bytes of an answer, made when they are asked for, so that a package of any size costs no memory.
struct Body
{
    /// Size of a body that never ends.
    static constexpr qint64 endless = std::numeric_limits<qint64>::max();

    qint64 size = 0;
    /// Fills `out` with the bytes from `offset` on; offset + out.size() is at most `size`.
    std::function<void(qint64 offset, std::span<char> out)> read = [](qint64, std::span<char>) {};

    static Body fromBytes(const QByteArray& bytes);
    /// `head`, then `row` `count` times, then `tail`. Ten '#' in the row stand for its number from 1, with
    /// leading zeros; a row without them stays as it is.
    static Body fromRows(const QByteArray& head, const QByteArray& row, qint64 count, const QByteArray& tail);
    /// `piece` again and again.
    static Body fromEndless(const QByteArray& piece);
};

} // namespace varnhold::host
