// Downloads from loopback to disk, ours and curl's in pairs on the same machine in the same minute.
// download_bench [FOLDER [PAIRS [batch]]]: "batch" leaves all out but the list of small packages; files are
// written to FOLDER, which should be on a real disk. The program for the terminal is looked for beside this
// one.

#include "download/Fetch.h"
#include "platform/Sha1.h"
#include "support/ChildRun.h"
#include "support/FileServer.h"
#include "support/PairedRuns.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <unistd.h>

namespace {

using namespace varnhold::bench;

constexpr long long mib = 1 << 20;
constexpr int timerLimit = 11; ///< ms
constexpr int stepLimit = 2;   ///< ms

/// A title whose packages have these bytes, with the sums that they should have.
std::string document(std::uint16_t port, long long bytes, int count)
{
    varnhold::Sha1 sum;
    const std::string block(mib, 'x');
    for (long long done = 0; done < bytes; done += mib)
        sum.add({block.data(), static_cast<qsizetype>(block.size())});
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<titlepatch status=\"alive\" "
                      "titleid=\"BLES00001\"><tag name=\"BLES00001_T1\">";
    for (int i = 0; i < count; ++i)
        xml += "<package version=\"01.0" + std::to_string(i) + "\" size=\"" + std::to_string(bytes) +
               "\" sha1sum=\"" + sum.result().toStdString() +
               "\" url=\"http://127.0.0.1:" + std::to_string(port) + "/" + std::to_string(bytes) + "/" +
               std::to_string(i) + ".pkg\" ps3_system_ver=\"02.7600\"/>";
    return xml + "<paramsfo><TITLE>Bench</TITLE></paramsfo></tag></titlepatch>\n";
}

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
    ~Bench()
    {
        std::filesystem::remove_all(m_folder);
        std::filesystem::remove(result());
    }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    void compare(long long bytes, int atOnce, double leastThroughput, double mostCpu)
    {
        m_timers.clear();
        m_steps.clear();
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
        if (atOnce > 1) {
            printLimited("a 10 ms timer meanwhile, 99th percentile", m_timers, timerLimit);
            printLimited("events of the loop's thread, 99th percentile", m_steps, stepLimit);
        }
        std::printf("  throughput: ours %.0f MB/s, curl %.0f MB/s, ratio %.2f\n", megaBytes / time.ours,
                    megaBytes / time.theirs, 1 / time.ratio);
        std::fflush(stdout);
    }

    /// The terminal's download of a title's packages, each with its check, against the usual two commands.
    void compareChecked(long long bytes, int count, double least)
    {
        const FileServer server([&](std::uint16_t port) { return document(port, bytes, count); });
        const std::string authority = "127.0.0.1:" + std::to_string(server.port());
        const std::filesystem::path root = m_folder.string() + "-root";
        std::filesystem::create_directories(root);
        std::ofstream(root / "hosts.ini") << "[Hosts]\nUse=these\n[Servers]\n2=" << authority << "\n";
        const std::string cli = std::filesystem::path(m_self).parent_path() / "varnhold-cli";
        std::string theirs;
        for (int i = 0; i < count; ++i) {
            theirs += (i > 0 ? " && curl -s -o " : "curl -s -o ") + path(i) + " http://" + authority + "/" +
                      std::to_string(bytes) + "/p && sha1sum " + path(i) + " >" + (root / "sum").string();
        }
        const PairedResult time = comparePaired(
            m_pairs,
            [&] {
                return measured({{"sh", "-c",
                                  "exec " + cli + " --root " + root.string() +
                                      " download BLES00001 --server 2 --all --to " + m_folder.string() +
                                      " >" + (root / "out").string()}},
                                bytes, count)
                    .seconds;
            },
            [&] {
                return measured({{"sh", "-c", theirs}}, bytes, count).seconds;
            });
        std::filesystem::remove_all(root);
        printPaired(std::to_string(count) + " x " + std::to_string(bytes / mib) +
                        " MiB with check, time against curl and sha1sum",
                    time, "s", 1, 1 / least);
        std::printf("  that is %.2f times as fast\n", 1 / time.ratio);
        std::fflush(stdout);
    }

    /// The terminal's list of small packages against two programs that take one, too.
    void compareBatch(long long bytes, int count, int atOnce)
    {
        const std::filesystem::path root = m_folder.string() + "-root";
        std::filesystem::create_directories(root);
        std::ofstream(root / "hosts.ini") << "[Hosts]\nUse=these\n[Servers]\n2=127.0.0.1:1\n";
        const std::string origin =
            "http://127.0.0.1:" + std::to_string(m_server.port()) + "/" + std::to_string(bytes) + "/";
        {
            std::ofstream urls(root / "urls");
            std::ofstream pairs(root / "pairs");
            for (int i = 0; i < count; ++i) {
                urls << origin << i << ".pkg\n";
                pairs << "url = " << origin << i << ".pkg\noutput = " << path(i) << "\n";
            }
        }
        const std::string many = std::to_string(atOnce);
        const std::string quiet = " >" + (root / "out").string();
        const auto run = [&](const std::string& command) {
            return measured({{"sh", "-c", "exec " + command + quiet}}, bytes, count).seconds;
        };
        const std::string cli = std::filesystem::path(m_self).parent_path() / "varnhold-cli";
        const auto ours = [&] {
            return run(cli + " --root " + root.string() + " batch " + (root / "urls").string() + " --jobs " +
                       many + " --to " + m_folder.string());
        };
        const PairedResult aria = comparePaired(m_pairs, ours, [&] {
            return run("aria2c -q --no-conf -j" + many + " -i " + (root / "urls").string() + " -d " +
                       m_folder.string());
        });
        const PairedResult curl = comparePaired(m_pairs, ours, [&] {
            return run("curl -s --parallel --parallel-max " + many + " -K " + (root / "pairs").string());
        });
        std::filesystem::remove_all(root);
        const std::string name = "a list of " + std::to_string(count) + " x " + std::to_string(bytes / 1000) +
                                 " KB, time against ";
        printPaired(name + "aria2c", aria, "s", 1, 1);
        printPaired(name + "curl", curl, "s", 1, 3);
    }

    void memory()
    {
        const double idle = runChildren({{m_self, "--fetch", result()}}).peakMiB;
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
        std::vector<std::string> words = {m_self, "--fetch", result()};
        for (int i = 0; i < atOnce; ++i) {
            words.push_back(url(bytes));
            words.push_back(path(i));
        }
        const ChildRun run = measured({words}, bytes, atOnce);
        double timer = 0;
        double step = 0;
        std::ifstream(result()) >> timer >> step;
        m_timers.push_back(timer);
        m_steps.push_back(step);
        return run;
    }
    [[nodiscard]] std::string result() const { return m_folder.string() + "-result"; }

    static void printLimited(const char* what, const std::vector<double>& values, double limit)
    {
        const auto [least, most] = std::minmax_element(values.begin(), values.end());
        const double median = medianOf(values);
        std::printf("  %s: %.3f to %.3f ms, median %.3f (below %.0f: %s)\n", what, *least, *most, median,
                    limit, median < limit ? "kept" : "MISSED");
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
    std::vector<double> m_timers; ///< of our runs: ms
    std::vector<double> m_steps;
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
    bench.compareBatch(100'000, 200, 5);
    if (argc > 3 && std::strcmp(argv[3], "batch") == 0)
        return 0;
    bench.compare(1024 * mib, 1, 3.0, 0.75);
    bench.compare(256 * mib, 5, 1.6, 0);
    bench.compareChecked(1024 * mib, 1, 2.5);
    bench.compareChecked(256 * mib, 5, 2.0);
    bench.memory();
    return 0;
}
