#pragma once

#include <mutex>
#include <sys/prctl.h>

namespace aerolith {

/// While one of these lives, the kernel writes no core dump of the process, and lets no other program of the
/// user read its memory: whatever copies of a password there are in it, the toolkit's and the bus's included.
/// Not for longer than that: desktops look into the processes that they serve. Any thread.
class Undumpable
{
public:
    Undumpable()
    {
        const std::lock_guard lock(s_mutex);
        if (s_count++ == 0) {
            s_wasDumpable = prctl(PR_GET_DUMPABLE) == dumpable;
            prctl(PR_SET_DUMPABLE, 0);
        }
    }

    Undumpable(const Undumpable&) = delete;
    Undumpable& operator=(const Undumpable&) = delete;

    ~Undumpable()
    {
        const std::lock_guard lock(s_mutex);
        if (--s_count == 0 && s_wasDumpable) {
            prctl(PR_SET_DUMPABLE, dumpable);
        }
    }

private:
    static constexpr int dumpable = 1;

    static inline std::mutex s_mutex;
    static inline int s_count = 0;
    static inline bool s_wasDumpable = false;
};

} // namespace aerolith
