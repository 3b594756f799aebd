// Downloads from loopback to disk, ours and curl's in pairs on the same machine in the same minute.
// download_bench [FOLDER [PAIRS]]: files are written to FOLDER, which should be on a real disk.

#include "download/Fetch.h"
#include "support/ChildRun.h"
#include "support/FileServer.h"
#include "support/PairedRuns.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include <unistd.h>

namespace {

using namespace varnhold::bench;

constexpr long long mib = 1 << 20;

class Bench
{
public:
    Bench(std::string self, const std::string& folder, int pairs)
        : m_self(std::move(self)),
          m_folder(std::filesystem::absolute(folder) / "download-bench"),
          m_pairs(pairs)
    {
        std::filesystem::create_directories(m_folder);
    }
    ~Bench() { std::filesystem::remove_all(m_folder); }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    void compare(long long bytes, int atOnce, double leastThroughput, double mostCpu)
    {
        std::vector<ChildRun> ours;
        std::vector<ChildRun> theirs;
        const auto keep = [](std::vector<ChildRun>& runs, const ChildRun& run) {
            runs.push_back(run);
            return run.seconds;
        };
        const PairedResult time = comparePaired(
            m_pairs, [&] { return keep(ours, runOurs(bytes, atOnce)); },
            [&] { return keep(theirs, runCurl(bytes, atOnce)); });
        // The CPU times of the very same runs.
        std::size_t our = 0;
        std::size_t their = 0;
        const PairedResult cpu = comparePaired(
            m_pairs, [&] { return ours.at(our++).cpuSeconds; },
            [&] { return theirs.at(their++).cpuSeconds; });

        const std::string name = std::to_string(atOnce) + " x " + std::to_string(bytes / mib) + " MiB";
        printPaired(name + ", time against curl", time, "s", 1, 1 / leastThroughput);
        printPaired(name + ", CPU time against curl", cpu, "s", 1, mostCpu);
        const double megaBytes = static_cast<double>(bytes) * atOnce / 1e6;
        std::printf("  throughput: ours %.0f MB/s, curl %.0f MB/s, ratio %.2f\n", megaBytes / time.ours,
                    megaBytes / time.theirs, 1 / time.ratio);
        std::fflush(stdout);
    }

    void memory()
    {
        const double idle = runChildren({{m_self, "--fetch"}}).peakMiB;
        std::printf("peak memory: idle %.1f MiB\n", idle);
        for (const long long size : {1LL, 64LL, 1024LL, 2047LL})
            std::printf("  %4lld MiB package: %+.1f MiB\n", size, runOurs(size * mib, 1).peakMiB - idle);
    }

private:
    [[nodiscard]] std::string url(long long bytes) const
    {
        return "http://127.0.0.1:" + std::to_string(m_server.port()) + "/" + std::to_string(bytes) + "/p.pkg";
    }
    [[nodiscard]] std::string path(int index) const { return m_folder / (std::to_string(index) + ".pkg"); }

    ChildRun runOurs(long long bytes, int atOnce)
    {
        std::vector<std::string> words = {m_self, "--fetch"};
        for (int i = 0; i < atOnce; ++i) {
            words.push_back(url(bytes));
            words.push_back(path(i));
        }
        return measured({words}, bytes, atOnce);
    }

    ChildRun runCurl(long long bytes, int atOnce)
    {
        std::vector<std::vector<std::string>> commands;
        for (int i = 0; i < atOnce; ++i)
            commands.push_back({"curl", "-s", "-o", path(i), url(bytes)});
        return measured(commands, bytes, atOnce);
    }

    /// Into an empty folder and with nothing left to write back. The old files go last, so that the memory
    /// that cached them is at hand again: on a virtual machine fresh memory costs more than the whole
    /// transfer.
    ChildRun measured(const std::vector<std::vector<std::string>>& commands, long long bytes, int count)
    {
        ::sync();
        for (const auto& entry : std::filesystem::directory_iterator(m_folder))
            std::filesystem::remove(entry);
        const ChildRun run = runChildren(commands);
        for (int i = 0; i < count; ++i) {
            if (std::filesystem::file_size(path(i)) != static_cast<std::uintmax_t>(bytes)) {
                std::fprintf(stderr, "a file is not whole\n");
                std::exit(1);
            }
        }
        return run;
    }

    FileServer m_server;
    std::string m_self;
    std::filesystem::path m_folder;
    int m_pairs;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--fetch") == 0)
        return fetch(argc, argv);
    const int pairs = argc > 2 ? std::atoi(argv[2]) : 7;
    Bench bench(argv[0], argc > 1 ? argv[1] : ".", pairs);
    std::printf(
        "Each download of ours first prints the 99th percentile of a 10 ms timer meanwhile, in ms.\n");
    bench.compare(1024 * mib, 1, 1.3, 0.75);
    bench.compare(256 * mib, 5, 1.2, 0);
    bench.memory();
    return 0;
}
