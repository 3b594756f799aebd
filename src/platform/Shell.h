#pragma once

#include <QString>

namespace varnhold {

/// The desktop's own handlers. Neither call waits for the program that it starts, and neither reports.
class Shell
{
public:
    virtual ~Shell() = default;
    /// Verb "Open": a path or an address in its default program.
    virtual void open(const QString& target) = 0;
    /// Verb "Explore": the folder itself in the file manager.
    virtual void explore(const QString& folder) = 0;
};

} // namespace varnhold
