#pragma once

#include "platform/Shell.h"

#include <QStringList>

namespace varnhold::test {

/// Keeps what it was asked to open.
class FakeShell : public Shell
{
public:
    void open(const QString& target) override { opened.append(target); }
    void openLink(const QString& link, std::function<void()> onFailure) override
    {
        opened.append(link);
        if (hasNoBrowser)
            onFailure();
    }
    void explore(const QString& folder) override { explored.append(folder); }

    QStringList opened;
    QStringList explored;
    bool hasNoBrowser = false;
};

} // namespace varnhold::test
