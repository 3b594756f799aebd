#pragma once

#include <QByteArray>

namespace varnhold::host {

/// The first line of a request; the service looks at nothing else.
struct HttpRequest
{
    enum class State { Incomplete, Malformed, Complete };

    State state = State::Incomplete;
    QByteArray method;
    QByteArray target; ///< as it came over the wire, query included
};

/// The longest header that is read; more counts as malformed.
inline constexpr qsizetype requestLimit = 64 * 1024;

/// Reads what has arrived so far. Bytes behind the header are ignored.
HttpRequest readRequest(QByteArrayView received);

} // namespace varnhold::host
