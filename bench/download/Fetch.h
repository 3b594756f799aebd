#pragma once

namespace varnhold::bench {

/// The measured side: "--fetch RESULT URL PATH [URL PATH ...]" downloads all at once in one event loop and
/// writes to the file RESULT two 99th percentiles, in ms: of a 10 ms timer's intervals, and of the time that
/// one event kept the loop. The exit code.
int fetch(int argc, char** argv);

} // namespace varnhold::bench
