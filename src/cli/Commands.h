#pragma once

#include "cli/ExitCode.h"

namespace varnhold::cli {

struct Arguments;
class Session;
class Terminal;

/// Prints the packages of a title as a table or as JSON.
ExitCode runLookup(const Arguments& arguments, Session& session);
/// Downloads packages of a title one after another, and compares their sums with the document's.
ExitCode runDownload(const Arguments& arguments, Session& session);
/// Prints which hosts are configured; starts nothing. Throws RunTimeError as Session does.
ExitCode runHosts(const Arguments& arguments, Terminal& terminal);

} // namespace varnhold::cli
