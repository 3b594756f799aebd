#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace varnhold::bench {

/// Runs once and gives what it measured, in a unit that the caller names: seconds, CPU seconds, bytes.
using Measurement = std::function<double()>;

/// Wall-clock seconds of a call.
template <typename Work> double secondsOf(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Seconds of processor time that this process spends in a call: the measure for plain computing on a machine
/// that does other work meanwhile.
template <typename Work> double cpuSecondsOf(Work&& work)
{
    const auto now = [] {
        std::timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    };
    const double start = now();
    work();
    return now() - start;
}

/// The middle value, or the mean of the middle two; 0 for none.
inline double medianOf(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

struct PairedResult
{
    double ours = 0;   ///< median
    double theirs = 0; ///< median
    double ratio = 0;  ///< median of ours / theirs of the single pairs
};

/// Measures ours and theirs side by side, `pairs` times, after one pair that does not count. The order
/// changes from pair to pair, so that a machine that slows down or warms up harms both alike.
inline PairedResult comparePaired(int pairs, const Measurement& ours, const Measurement& theirs)
{
    std::vector<double> ourValues;
    std::vector<double> theirValues;
    std::vector<double> ratios;
    for (int pair = -1; pair < pairs; ++pair) {
        const bool oursFirst = pair % 2 == 0;
        double our = 0;
        double their = 0;
        if (oursFirst)
            our = ours();
        their = theirs();
        if (!oursFirst)
            our = ours();
        if (pair < 0)
            continue;
        ourValues.push_back(our);
        theirValues.push_back(their);
        ratios.push_back(their > 0 ? our / their : 0);
    }
    return {medianOf(ourValues), medianOf(theirValues), medianOf(ratios)};
}

/// One line: name, both medians in the unit, the ratio, and whether the ratio keeps its limit (at most, as
/// for times; a limit of 0 prints none). True when it does.
inline bool printPaired(const std::string& name, const PairedResult& result, const char* unit, double scale,
                        double atMost = 0)
{
    const bool kept = atMost <= 0 || result.ratio <= atMost;
    std::printf("%-58s ours %10.3f %s, other %10.3f %s, ratio %.3f", name.c_str(), result.ours * scale, unit,
                result.theirs * scale, unit, result.ratio);
    if (atMost > 0)
        std::printf(" (at most %.2f: %s)", atMost, kept ? "kept" : "MISSED");
    std::printf("\n");
    std::fflush(stdout);
    return kept;
}

} // namespace varnhold::bench
