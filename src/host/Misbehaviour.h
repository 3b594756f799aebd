#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace varnhold::host {

/// What can go wrong with an answer. The amount's meaning and default stand behind each.
enum class Odd {
    None,
    EarlyClose,      ///< closes after so many body bytes (half)
    Reset,           ///< resets the connection after so many body bytes (half)
    SplitHeader,     ///< sends the header in two parts, cut there (in the middle)
    Pieces,          ///< sends the header and the first body bytes in pieces of that size (1)
    WrongLength,     ///< tells a length that is so much too large (1000); may be negative
    NoLength,        ///< tells no length
    Status,          ///< answers with this status (500)
    SlowDrip,        ///< sends so many bytes a second (2048)
    Stall,           ///< never answers, or stalls after so many body bytes
    EndlessRedirect, ///< each redirect leads to another
    RedirectSelf,    ///< redirects to the very same address
    RedirectEmpty,   ///< redirects to an empty address
    RedirectPort,    ///< redirects to the second port, which answers
    EndlessHeaders,  ///< header lines without end
    NotXml,          ///< a page that is no XML
    ManyPackages,    ///< a document of so many packages (20000)
    HugeDocument,    ///< a document of so many MiB (65)
    NotPicture,      ///< a web page that calls itself a JPEG
    MovedToPage,     ///< redirects to a web page
    EndlessBody,     ///< a body without a length that never ends
    ManyScans,       ///< a JPEG of so many scans (4000), each over all of its 8000 x 8000 pixels
    ToldSize,        ///< a small JPEG that tells 65535 x 65535 pixels
    HalfPicture,     ///< tells no length, and closes after so many body bytes (half)
    HttpChunk,       ///< after so many body bytes (half) comes a chunk that begins with "HTTP"
};

struct Misbehaviour
{
    Odd kind = Odd::None;
    std::optional<qint64> amount;
};

/// "kind" or "kind:amount", such as "early-close", "status:503"; "404" stands for "status:404". No value for
/// a word that is none.
std::optional<Misbehaviour> parseMisbehaviour(QStringView text);

/// All words that parseMisbehaviour knows.
QStringList misbehaviourWords();

} // namespace varnhold::host
