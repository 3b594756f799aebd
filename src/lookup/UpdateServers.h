#pragma once

#include <QString>

namespace varnhold {

struct Hosts;

/// One of the six places that answer with update documents.
struct UpdateServer
{
    int value;                ///< 1 to 6, what Vs_Server holds
    const char16_t* label;    ///< lblServer caption
    const char16_t* scheme;   ///< "http" or "https"
    const char16_t* pathBase; ///< used as it stands; some end in an apostrophe, which must reach the wire raw
};

/// The entry of a value; null outside 1 to 6.
const UpdateServer* updateServer(int value);

/// Address of a title's update document: scheme, host, path base, the id, "/", the id, "-ver.xml". The id
/// stands as it is given; callers that want it in upper case do that first. Empty outside 1 to 6.
QString Document_Url(const Hosts& hosts, int serverValue, const QString& gameId);

} // namespace varnhold
