#include "support/ChildRun.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varnhold::bench {

namespace {

double secondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

} // namespace

pid_t startChild(const std::vector<std::string>& words)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    ::execvp(arguments.front(), arguments.data());
    ::_exit(127);
}

ChildRun runChildren(const std::vector<std::vector<std::string>>& commands)
{
    ChildRun run;
    const auto start = std::chrono::steady_clock::now();
    std::vector<pid_t> children;
    for (const auto& words : commands)
        children.push_back(startChild(words));
    for (const pid_t child : children) {
        int status = 0;
        rusage used = {};
        if (::wait4(child, &status, 0, &used) != child || status != 0) {
            std::fprintf(stderr, "a measured program failed\n");
            std::exit(1);
        }
        run.cpuSeconds += secondsOf(used.ru_utime) + secondsOf(used.ru_stime);
        run.peakMiB = std::max(run.peakMiB, static_cast<double>(used.ru_maxrss) / 1024);
    }
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return run;
}

} // namespace varnhold::bench
