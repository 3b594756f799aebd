#pragma once

namespace varnhold {

/// Runs waiting events inside a routine. Every routine that pumps must expect that anything happened
/// meanwhile: windows unloaded, lists refilled, the program asked to end.
class MessagePump
{
public:
    virtual ~MessagePump() = default;
    /// Runs the events that wait now. False once the program is ending: callers leave their loops then.
    virtual bool pump() = 0;
    /// As pump(), but sleeps until an event comes when none waits.
    virtual bool pumpNext() = 0;
};

/// Pumps the Qt event loop. end() makes every running and later pump return false.
class EventLoopPump : public MessagePump
{
public:
    bool pump() override;
    bool pumpNext() override;
    void end();

private:
    bool m_ending = false;
};

} // namespace varnhold
