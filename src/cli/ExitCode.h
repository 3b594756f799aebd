#pragma once

namespace varnhold::cli {

/// What the command line tells scripts. The help text and the man page name the same.
enum class ExitCode {
    Fine = 0,
    Failed = 1,       ///< a lookup, a download, a cover or the work on a database failed
    Usage = 2,        ///< the arguments make no sense
    NoSuchTitle = 3,  ///< no such title, package or cover
    NothingFound = 3, ///< a search, or a list, without rows
    SumDiffers = 4,   ///< a package has arrived, and its SHA-1 is not the document's
};

} // namespace varnhold::cli
