#pragma once

#include <QMimeData>
#include <QUrl>

namespace varnhold {

/// Text, or one address that comes as a list.
inline bool offersText(const QMimeData& offer)
{
    return offer.hasFormat(QStringLiteral("text/plain")) || offer.urls().size() == 1;
}

/// What was dragged as one piece of text: an address of a list is taken as it was written.
/// Empty when the offer holds neither.
inline QString droppedText(const QMimeData& offer)
{
    if (offer.hasFormat(QStringLiteral("text/plain")))
        return offer.text();
    const QList<QUrl> addresses = offer.urls();
    return addresses.size() == 1 ? addresses.front().toString(QUrl::FullyEncoded) : QString();
}

} // namespace varnhold
