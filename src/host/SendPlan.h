#pragma once

#include "host/Misbehaviour.h"
#include "host/Reply.h"

#include <QByteArray>

#include <vector>

namespace varnhold::host {

/// What goes over the wire for one answer, and how: a stream of header and body with places where the
/// sender waits, and the way it ends.
struct SendPlan
{
    enum class End { Close, Reset, Stall };

    QByteArray head;
    Body body;
    std::vector<qint64> cuts; ///< stream positions, ascending: what stands before them arrives on its own
    qint64 end = 0;           ///< stream position where it ends
    End how = End::Close;
    qint64 bytesPerSecond = 0; ///< 0: as fast as the peer takes it

    /// Fills `out` from the stream at `offset`; the bytes filled, at least 1 before `end`.
    qint64 read(qint64 offset, std::span<char> out) const;
};

/// What a plan needs to know of the request and the service.
struct PlanContext
{
    QByteArray target;      ///< as requested, prefix and query included
    QByteArray path;        ///< of the plain answer, without prefix and query
    QByteArray origin;      ///< scheme and authority that the request came to
    QByteArray otherOrigin; ///< the second port; empty when the request came there
    qint64 bytesPerSecond = 0;
    bool headOnly = false;
};

SendPlan makePlan(Reply reply, const Misbehaviour& misbehaviour, const PlanContext& context);

} // namespace varnhold::host
