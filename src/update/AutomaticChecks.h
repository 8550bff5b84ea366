#pragma once

#include "platform/Clock.h"
#include "platform/Queues.h"
#include "platform/UserDefaults.h"

#include <memory>

namespace aerolith {

/// When a check is due without being asked for: once a day at most, and only if the user wants it. No timer
/// runs while the user does not. Main thread.
class AutomaticChecks
{
public:
    /// All of it outlives this object.
    AutomaticChecks(UserDefaults& userDefaults, const Clock& clock, MainQueue& mainQueue, Task check);

    /// From now on `check` is called when one is due, which may be at once.
    void start();

    [[nodiscard]] bool areWanted() const;
    void setWanted(bool wanted);

    /// A check is under way, whoever wanted it: the next one is due a day from now.
    void noteCheck();

private:
    void schedule();
    void checkIfDue();
    [[nodiscard]] bool isDue() const;

    UserDefaults& m_userDefaults;
    const Clock& m_clock;
    MainQueue& m_mainQueue;
    Task m_check;
    std::unique_ptr<RepeatingTimer> m_timer;
};

} // namespace aerolith
