#pragma once

#include <benchmark/benchmark.h>

#include <ctime>
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

/// Mean CPU seconds of one run, by name and size, for the ratios at the end of a program.
inline std::map<std::pair<std::string, long>, double>& meanSeconds()
{
    static std::map<std::pair<std::string, long>, double> means;
    return means;
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

    ~CpuTimer() { meanSeconds()[m_key] = m_total / static_cast<double>(m_state.iterations()); }

    template <typename Work>
    void time(Work work)
    {
        const double start = cpuSeconds();
        work();
        const double elapsed = cpuSeconds() - start;
        m_state.SetIterationTime(elapsed);
        m_total += elapsed;
    }

private:
    benchmark::State& m_state;
    std::pair<std::string, long> m_key;
    double m_total = 0;
};

} // namespace aerolith
