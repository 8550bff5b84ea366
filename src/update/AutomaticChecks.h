#pragma once

#include "platform/Clock.h"
#include "platform/Queues.h"
#include "platform/UserDefaults.h"

#include <chrono>
#include <memory>
#include <optional>

namespace aerolith {

/// Whether the last check, in seconds since 1970 or absent, was a day ago or more. Any number is one that a
/// settings file may hold; one from the future was noted by a clock that has been set back since.
[[nodiscard]] bool isCheckDue(std::optional<qint64> last, std::chrono::seconds now);

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

    UserDefaults& m_userDefaults;
    const Clock& m_clock;
    MainQueue& m_mainQueue;
    Task m_check;
    std::unique_ptr<RepeatingTimer> m_timer;
};

} // namespace aerolith
