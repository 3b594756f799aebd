#pragma once

namespace varnhold::cli {

/// What the command line tells scripts. The help text and the man page name the same.
enum class ExitCode {
    Fine = 0,
    Failed = 1, ///< a lookup, a download, a cover, a check or the work on a database or on folders failed
    Usage = 2,  ///< the arguments, or a line of a list, make no sense
    NoSuchTitle = 3,  ///< no such title, package or cover
    NothingFound = 3, ///< a search, or a list, without rows
    SumDiffers = 4,   ///< a package has arrived, and its SHA-1 is not the document's
    News = 5,         ///< there is a newer version or id list
};

} // namespace varnhold::cli
