#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace aerolith {

/// Turns the first SIGINT or SIGTERM into a call on the main thread's event loop; a second one ends the
/// process at once. One instance, which lives from start to end of the event loop.
class TerminationSignals
{
public:
    explicit TerminationSignals(const std::function<void()>& terminate);
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    ~TerminationSignals();

private:
    int m_event;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace aerolith
