#pragma once

#include <QStringView>

#include <array>

namespace varnhold {

/// The program's words for what a download's socket is doing. Windows show labels instead: of these, only
/// "Error" is in use, as a title of boxes. The spelling is meant.
inline constexpr std::array<QStringView, 14> phaseWords = {
    u"Idle",
    u"Checking Address",
    u"Address Accepted",
    u"Connecting",
    u"Connected",
    u"Requesting Data",
    u"Request Sent",
    u"Receiving Response",
    u"Response Received",
    u"Disconnecting",
    u"Disconnected",
    u"Error",
    u"Responce Completed",
    u"Unrecognised response",
};
inline constexpr QStringView errorWord = phaseWords[11];

} // namespace varnhold
