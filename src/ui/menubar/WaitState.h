#pragma once

namespace aerolith {

/// While it exists the program waits for the machine: the pointer says so. What the user has typed and
/// pressed meanwhile was meant for what stood there then, and is forgotten when it ends. Main thread.
class WaitState
{
public:
    WaitState();
    WaitState(const WaitState&) = delete;
    WaitState& operator=(const WaitState&) = delete;
    ~WaitState();
};

} // namespace aerolith
