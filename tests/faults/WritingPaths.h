#pragma once

#include "support/RunningService.h"
#include "support/TempRoot.h"

#include <functional>
#include <memory>
#include <vector>

namespace varnhold::test {

/// Where one path is tried: a folder whose files the faults are put into, and, for a path that asks for it, a
/// running service.
class FaultPlace
{
public:
    TempRoot root;
    RunningService& service()
    {
        if (!m_service)
            m_service = std::make_unique<RunningService>();
        return *m_service;
    }

private:
    std::unique_ptr<RunningService> m_service;
};

enum class FaultOutcome {
    Acknowledged, ///< the path said that it is done
    Refused,      ///< it said that it is not
    Killed,
};

/// A way by which the program changes files.
struct WritingPath
{
    const char* name;
    /// What is there before each run.
    std::function<void(FaultPlace& place)> prepare;
    /// One use of the path, in a process of its own, where the faults are; true where it tells a success.
    std::function<bool(const QString& root, const QString& argument)> use;
    /// What is there afterwards; called after each run with a fault and after the use that follows it, which
    /// meets none and must be acknowledged.
    std::function<void(FaultPlace& place, FaultOutcome outcome)> check;
    /// Handed to `use`; none where it is empty.
    std::function<QString(FaultPlace& place)> argument = {};
    /// Calls of each kind that are tried, spread from the first to the last. A run of a path costs a process.
    int most = 12;
    /// A flush that failed need not make it tell a failure: it tells nothing at all, and that it reads back
    /// stands for a success; or the engine passes over a folder's flush.
    bool mayPassOverFlushes = false;
};

const std::vector<WritingPath>& writingPaths();

} // namespace varnhold::test
