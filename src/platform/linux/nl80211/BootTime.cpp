#include "platform/linux/nl80211/BootTime.h"

#include <ctime>

namespace aerolith::nl80211 {

BootTime bootTimeNow()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

} // namespace aerolith::nl80211
