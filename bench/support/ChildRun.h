#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace varnhold::bench {

/// What a program used, start and end included.
struct ChildRun
{
    double seconds = 0;    ///< wall clock
    double cpuSeconds = 0; ///< user and system
    double peakMiB = 0;    ///< largest resident size
};

/// Starts a program without a shell; the first word is its path, or a name to be looked for. Its output goes
/// to ours.
pid_t startChild(const std::vector<std::string>& words);

/// Runs programs at the same time and waits for all: the wall clock of the whole, CPU time summed, the
/// largest peak. Ends the benchmark when one fails.
ChildRun runChildren(const std::vector<std::vector<std::string>>& commands);

} // namespace varnhold::bench
