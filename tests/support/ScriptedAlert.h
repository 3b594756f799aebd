#pragma once

#include "platform/NetworkBrowser.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace varnhold::test {

/// Answers certificate questions from a script: Yes for as many as `yes` says, No from there on.
class ScriptedAlert : public SecurityAlert
{
public:
    bool accept(const QString& host, const QStringList& sentences) override
    {
        hosts.append(host);
        problems.append(sentences);
        if (whileOpen)
            whileOpen();
        return yes-- > 0;
    }
    void cancel() override { ++cancelled; }

    int yes = 0;
    std::function<void()> whileOpen; ///< what happens before the answer
    QStringList hosts;               ///< of every question, in order
    QList<QStringList> problems;
    int cancelled = 0;
};

} // namespace varnhold::test
