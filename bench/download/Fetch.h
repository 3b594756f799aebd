#pragma once

namespace varnhold::bench {

/// The measured side: "--fetch URL PATH [URL PATH ...]" downloads all at once in one event loop and says on
/// the standard output what the 99th percentile of a 10 ms timer's intervals was. The exit code.
int fetch(int argc, char** argv);

} // namespace varnhold::bench
