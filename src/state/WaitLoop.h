#pragma once

namespace varnhold {

class MessagePump;

/// Busy wait: pumps `units`, rounded to a whole number with ties to even, times 160000 times. It has no timer
/// and takes as long as the machine takes. Leaves early only when the program is ending.
void Wait_Loop(double units, MessagePump& pump);

} // namespace varnhold
