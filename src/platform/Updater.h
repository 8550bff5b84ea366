#pragma once

#include <functional>
#include <memory>

namespace aerolith {

/// Somebody who is told of changes: destroying it ends that. Main thread.
class Observation
{
public:
    Observation() = default;
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    virtual ~Observation() = default;
};

/// Finds out about newer versions of the program, and talks to the user about them by itself. Main thread.
class Updater
{
public:
    Updater() = default;
    Updater(const Updater&) = delete;
    Updater& operator=(const Updater&) = delete;
    virtual ~Updater() = default;

    /// Begins the updater's own schedule of automatic checks, if there is to be one. Once, at launch.
    virtual void start() = 0;

    /// Calls `observer` with whether the user may start a check: at once with the current value, and later
    /// with every new one. The updater outlives the observation.
    [[nodiscard]] virtual std::unique_ptr<Observation>
    observeCanCheckForUpdates(std::function<void(bool)> observer) = 0;

    /// Starts a check for the user, who is told its outcome whatever it is. Does nothing while none may be
    /// started.
    virtual void checkForUpdates() = 0;
};

} // namespace aerolith
