#include "cli/RunProgress.h"

#include <utility>

namespace aerolith {

RunProgress::RunProgress(ProgressLine& line, MainQueue& mainQueue, std::function<QString()> describe)
    : m_line(line), m_describe(std::move(describe))
{
    mainQueue.asyncAfter(Seconds(2), m_lifeline.guarded([this, &mainQueue] {
        const auto show = [this] { m_line.show(m_describe()); };
        show();
        m_timer = mainQueue.scheduledTimer(Seconds(1), show);
    }));
}

} // namespace aerolith
