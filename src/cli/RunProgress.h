#pragma once

#include "cli/ProgressLine.h"
#include "platform/Lifeline.h"
#include "platform/Queues.h"

#include <functional>
#include <memory>

namespace aerolith {

/// Shows how far a run has come, once a second, from the second second on: a shorter run needs no word about
/// it. Takes its line away when it ends. Main thread.
class RunProgress
{
public:
    RunProgress(ProgressLine& line, MainQueue& mainQueue, std::function<QString()> describe);
    RunProgress(const RunProgress&) = delete;
    RunProgress& operator=(const RunProgress&) = delete;

    ~RunProgress() { makeWay(); }

    /// Takes the line away until the next second, for output that may go to the same terminal.
    void makeWay() { m_line.show({}); }

private:
    ProgressLine& m_line;
    std::function<QString()> m_describe;
    std::unique_ptr<RepeatingTimer> m_timer;
    Lifeline m_lifeline;
};

} // namespace aerolith
