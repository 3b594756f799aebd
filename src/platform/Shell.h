#pragma once

#include <QString>

#include <functional>

namespace varnhold {

/// The desktop's own handlers. No call waits for the program that it starts, and none reports.
class Shell
{
public:
    virtual ~Shell() = default;
    /// Verb "Open": a path or an address in its default program.
    virtual void open(const QString& target) = 0;
    /// The same for an address; `onFailure` runs, maybe later, where no program takes it.
    virtual void openLink(const QString& link, std::function<void()> onFailure) = 0;
    /// Verb "Explore": the folder itself in the file manager.
    virtual void explore(const QString& folder) = 0;
};

} // namespace varnhold
