// A small library to be loaded before a program. It stands in front of the system's calls on files below one
// folder and on internet sockets, counts them by kind, and makes one go wrong. Configured by the environment:
//   VARNHOLD_FAULT_UNDER   the folder
//   VARNHOLD_FAULT         KIND:N:WAY, where KIND is a word of `kinds`, N counts from 1, and WAY is
//                            once    this call fails
//                            always  this one and all later ones of the kind fail
//                            short   it does half of its bytes; a call that moves none, or one, does as it is
//                            kill    the process is killed there, a write after half of its bytes
//   VARNHOLD_FAULT_REPORT  a file that gets a line "KIND COUNT" for each kind when the program ends
//
// Named exports only, and no allocations: calls come from anywhere, also before main.

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

enum Kind { Open, Write, Rename, Sync, Unlink, Connect, Send, Recv, KindCount };
constexpr const char* kinds[KindCount] = {"open",   "write",   "rename", "sync",
                                          "unlink", "connect", "send",   "recv"};
constexpr int failures[KindCount] = {EACCES, ENOSPC, EIO, EIO, EACCES, ECONNREFUSED, ECONNRESET, ECONNRESET};

enum class Way { None, Once, Always, Short, Kill };

struct Plan
{
    const char* under = nullptr;
    std::size_t underSize = 0;
    const char* report = nullptr;
    Kind kind = KindCount;
    long number = 0;
    Way way = Way::None;
    std::atomic<long> counts[KindCount] = {};

    Plan()
    {
        under = std::getenv("VARNHOLD_FAULT_UNDER");
        underSize = under == nullptr ? 0 : std::strlen(under);
        report = std::getenv("VARNHOLD_FAULT_REPORT");
        const char* const fault = std::getenv("VARNHOLD_FAULT");
        char kindWord[16] = {};
        char wayWord[16] = {};
        if (fault == nullptr || std::sscanf(fault, "%15[^:]:%ld:%15s", kindWord, &number, wayWord) != 3)
            return;
        for (int i = 0; i < KindCount; ++i) {
            if (std::strcmp(kindWord, kinds[i]) == 0)
                kind = static_cast<Kind>(i);
        }
        constexpr const char* ways[] = {"", "once", "always", "short", "kill"};
        for (int i = 1; i < 5; ++i) {
            if (std::strcmp(wayWord, ways[i]) == 0)
                way = static_cast<Way>(i);
        }
    }

    ~Plan()
    {
        std::FILE* const file = report == nullptr ? nullptr : std::fopen(report, "we");
        if (file == nullptr)
            return;
        for (int i = 0; i < KindCount; ++i)
            std::fprintf(file, "%s %ld\n", kinds[i], counts[i].load());
        std::fclose(file);
    }
};

Plan& plan()
{
    static Plan made;
    return made;
}

/// The plan is there before the first thread, and its report is written when the program ends.
[[maybe_unused]] const Plan& madeAtStart = plan();

enum class Verdict { Pass, Fail, Half, Kill };

Verdict count(Kind kind)
{
    const long number = ++plan().counts[kind];
    if (kind != plan().kind || plan().way == Way::None || number < plan().number)
        return Verdict::Pass;
    if (number > plan().number && plan().way != Way::Always)
        return Verdict::Pass;
    switch (plan().way) {
    case Way::Short:
        return Verdict::Half;
    case Way::Kill:
        return Verdict::Kill;
    default:
        errno = failures[kind];
        return Verdict::Fail;
    }
}

bool isBelow(const char* path)
{
    return plan().under != nullptr && path != nullptr &&
           std::strncmp(path, plan().under, plan().underSize) == 0;
}

bool isBelow(int file)
{
    if (plan().under == nullptr)
        return false;
    char link[64];
    char path[4096];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const int before = errno;
    const ssize_t size = ::readlink(link, path, sizeof path - 1);
    errno = before;
    if (size <= 0)
        return false;
    path[size] = 0;
    return isBelow(path);
}

bool isInternet(int file)
{
    if (plan().under == nullptr)
        return false;
    sockaddr_storage address = {};
    socklen_t size = sizeof address;
    const int before = errno;
    const bool named = ::getsockname(file, reinterpret_cast<sockaddr*>(&address), &size) == 0;
    errno = before;
    return named && (address.ss_family == AF_INET || address.ss_family == AF_INET6);
}

[[noreturn]] void die()
{
    ::kill(::getpid(), SIGKILL);
    std::abort();
}

template <typename Function> Function next(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

/// For calls that move no bytes. `call` is the system's own.
template <typename Call> auto guarded(bool isOurs, Kind kind, Call&& call) -> decltype(call())
{
    switch (isOurs ? count(kind) : Verdict::Pass) {
    case Verdict::Fail:
        return -1;
    case Verdict::Kill:
        die();
    default:
        return call();
    }
}

/// For calls that move bytes. `call` takes how many.
template <typename Call> ssize_t moving(bool isOurs, Kind kind, std::size_t size, Call&& call)
{
    const Verdict verdict = isOurs ? count(kind) : Verdict::Pass;
    if (verdict == Verdict::Fail)
        return -1;
    if (verdict == Verdict::Pass || (verdict == Verdict::Half && size < 2))
        return call(size);
    if (verdict == Verdict::Kill && (kind != Write || size < 2))
        die();
    const ssize_t moved = call(size / 2);
    if (verdict == Verdict::Kill)
        die();
    return moved;
}

/// By what a descriptor is: a file's write or a socket's send.
template <typename Call> ssize_t written(int file, std::size_t size, Call&& call)
{
    if (isBelow(file))
        return moving(true, Write, size, call);
    return moving(isInternet(file), Send, size, call);
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

#define OPEN(name)                                                                                           \
    __attribute__((visibility("default"))) int name(const char* path, int flags, ...)                        \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = modeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        return guarded(isBelow(path), Open, [&] {                                                            \
            static const auto real = next<int (*)(const char*, int, ...)>(#name);                            \
            return real(path, flags, mode);                                                                  \
        });                                                                                                  \
    }
#define OPENAT(name)                                                                                         \
    __attribute__((visibility("default"))) int name(int folder, const char* path, int flags, ...)            \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = modeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        return guarded(isBelow(path), Open, [&] {                                                            \
            static const auto real = next<int (*)(int, const char*, int, ...)>(#name);                       \
            return real(folder, path, flags, mode);                                                          \
        });                                                                                                  \
    }
// The plain call, its large-file form, and what a fortified caller without a mode asks for.
OPEN(open)
OPEN(open64)
OPEN(__open_2)
OPEN(__open64_2)
OPENAT(openat)
OPENAT(openat64)

#define EXPORT(result, name, parameters) __attribute__((visibility("default"))) result name parameters
#define REAL(name, ...) (next<decltype(&::name)>(#name)(__VA_ARGS__))

EXPORT(ssize_t, write, (int file, const void* bytes, std::size_t size))
{
    return written(file, size, [&](std::size_t most) { return REAL(write, file, bytes, most); });
}

EXPORT(ssize_t, pwrite, (int file, const void* bytes, std::size_t size, off_t at))
{
    return written(file, size, [&](std::size_t most) { return REAL(pwrite, file, bytes, most, at); });
}

EXPORT(ssize_t, pwrite64, (int file, const void* bytes, std::size_t size, off64_t at))
{
    return written(file, size, [&](std::size_t most) { return REAL(pwrite64, file, bytes, most, at); });
}

EXPORT(ssize_t, writev, (int file, const iovec* parts, int partCount))
{
    // Cut short, it does the first part alone.
    const auto all = static_cast<std::size_t>(partCount) * 2;
    return written(file, all, [&](std::size_t most) {
        return REAL(writev, file, parts, most == all ? partCount : (partCount + 1) / 2);
    });
}

EXPORT(ssize_t, splice, (int from, off64_t* fromAt, int to, off64_t* toAt, std::size_t size, unsigned flags))
{
    const bool isFile = isBelow(to);
    return moving(isFile || isInternet(from), isFile ? Write : Recv, size,
                  [&](std::size_t most) { return REAL(splice, from, fromAt, to, toAt, most, flags); });
}

EXPORT(int, rename, (const char* from, const char* to))
{
    return guarded(isBelow(from), Rename, [&] { return REAL(rename, from, to); });
}

EXPORT(int, renameat, (int fromFolder, const char* from, int toFolder, const char* to))
{
    return guarded(isBelow(from), Rename, [&] { return REAL(renameat, fromFolder, from, toFolder, to); });
}

EXPORT(int, renameat2, (int fromFolder, const char* from, int toFolder, const char* to, unsigned flags))
{
    return guarded(isBelow(from), Rename,
                   [&] { return REAL(renameat2, fromFolder, from, toFolder, to, flags); });
}

EXPORT(int, fsync, (int file))
{
    return guarded(isBelow(file), Sync, [&] { return REAL(fsync, file); });
}

EXPORT(int, fdatasync, (int file))
{
    return guarded(isBelow(file), Sync, [&] { return REAL(fdatasync, file); });
}

EXPORT(int, unlink, (const char* path))
{
    return guarded(isBelow(path), Unlink, [&] { return REAL(unlink, path); });
}

EXPORT(int, unlinkat, (int folder, const char* path, int flags))
{
    return guarded(isBelow(path), Unlink, [&] { return REAL(unlinkat, folder, path, flags); });
}

EXPORT(int, connect, (int file, const sockaddr* address, socklen_t size))
{
    const bool isOurs = address != nullptr &&
                        (address->sa_family == AF_INET || address->sa_family == AF_INET6) &&
                        plan().under != nullptr;
    return guarded(isOurs, Connect, [&] { return REAL(connect, file, address, size); });
}

EXPORT(ssize_t, send, (int file, const void* bytes, std::size_t size, int flags))
{
    return moving(isInternet(file), Send, size,
                  [&](std::size_t most) { return REAL(send, file, bytes, most, flags); });
}

EXPORT(ssize_t, recv, (int file, void* bytes, std::size_t size, int flags))
{
    // A look at what waits is never cut short by a system.
    const bool isLook = (flags & MSG_PEEK) != 0 && plan().way == Way::Short;
    return moving(isInternet(file) && !isLook, Recv, size,
                  [&](std::size_t most) { return REAL(recv, file, bytes, most, flags); });
}

EXPORT(ssize_t, read, (int file, void* bytes, std::size_t size))
{
    return moving(isInternet(file), Recv, size,
                  [&](std::size_t most) { return REAL(read, file, bytes, most); });
}
}
