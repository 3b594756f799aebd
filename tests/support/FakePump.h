#pragma once

#include "platform/MessagePump.h"

#include <functional>
#include <map>
#include <utility>

namespace varnhold::test {

/// Counts pumps, and runs what was planned for the Nth of them (both kinds count, from 1).
class FakePump : public MessagePump
{
public:
    bool pump() override { return step(); }
    bool pumpNext() override { return step(); }

    void at(int nth, std::function<void()> action) { m_actions[nth] = std::move(action); }

    int count = 0;
    bool ending = false;

private:
    bool step()
    {
        ++count;
        if (const auto planned = m_actions.extract(count))
            planned.mapped()();
        return !ending;
    }

    std::map<int, std::function<void()>> m_actions;
};

} // namespace varnhold::test
