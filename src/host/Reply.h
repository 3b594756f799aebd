#pragma once

#include "host/Body.h"

namespace varnhold::host {

/// An answer as a well-behaved host gives it.
struct Reply
{
    int status = 200;
    QByteArray contentType = "text/plain";
    QByteArray location; ///< of a redirect
    Body body;
    /// Sent at the service's pace rather than at once.
    bool paced = false;
};

/// An orderly answer with these bytes.
Reply bytesReply(const QByteArray& contentType, const QByteArray& bytes);
/// A short page for a status that carries nothing else.
Reply statusReply(int status);
/// The usual phrase of a status; "Odd" for one that has none here.
QByteArray reasonPhrase(int status);

} // namespace varnhold::host
