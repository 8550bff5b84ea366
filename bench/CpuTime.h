#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <initializer_list>
#include <limits>
#include <map>
#include <string>
#include <utility>

namespace aerolith {

/// CPU time of this thread: other work on the machine does not count.
inline double cpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// CPU seconds of the runs of one benchmark.
struct CpuSeconds
{
    double mean = 0;
    /// The run that was disturbed least: others on the machine share its caches and can only slow a run down.
    double fastest = 0;
};

/// By name and size, for the ratios at the end of a program.
inline std::map<std::pair<std::string, long>, CpuSeconds>& measured()
{
    static std::map<std::pair<std::string, long>, CpuSeconds> all;
    return all;
}

/// Times the part of each iteration that counts. Lives as long as the benchmark's loop.
class CpuTimer
{
public:
    CpuTimer(benchmark::State& state, std::string name, long size)
        : m_state(state), m_key(std::move(name), size)
    {
    }

    CpuTimer(const CpuTimer&) = delete;
    CpuTimer& operator=(const CpuTimer&) = delete;

    ~CpuTimer()
    {
        measured()[m_key] = {.mean = m_total / static_cast<double>(m_state.iterations()),
                             .fastest = m_fastest};
    }

    template <typename Work>
    void time(Work work)
    {
        const double start = cpuSeconds();
        work();
        count(cpuSeconds() - start);
    }

    /// One run, in seconds that its own process has told.
    void count(double elapsed)
    {
        m_state.SetIterationTime(elapsed);
        m_total += elapsed;
        m_fastest = std::min(m_fastest, elapsed);
    }

private:
    benchmark::State& m_state;
    std::pair<std::string, long> m_key;
    double m_total = 0;
    double m_fastest = std::numeric_limits<double>::infinity();
};

/// What each of these takes of a frame of a 60 Hz screen.
inline void printFrames(const char* what, std::initializer_list<const char*> names, long size)
{
    constexpr double frameMilliseconds = 1000.0 / 60;
    for (const char* name : names) {
        const double milliseconds = measured()[{name, size}].mean * 1000;
        std::printf("%s, %s: %.1f ms, %.0f %% of a frame\n", what, name, milliseconds,
                    milliseconds / frameMilliseconds * 100);
    }
}

} // namespace aerolith
