// One merge of a scan against a plain copy of the history bytes that it moves.

#include "SyntheticNetworks.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <map>
#include <vector>

using namespace aerolith;

namespace {

constexpr int fullHistory = 50;

/// CPU seconds of one run, by benchmark and size, for the ratios at the end.
std::map<std::pair<char, int>, double> seconds; // NOLINT(cert-err58-cpp)

/// CPU time of this thread: other work on the machine does not count.
double cpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

class Stopwatch
{
public:
    Stopwatch(benchmark::State& state, char name) : m_state(state), m_name(name) {}

    template <typename Work>
    void time(Work work)
    {
        const double start = cpuSeconds();
        work();
        const double elapsed = cpuSeconds() - start;
        m_state.SetIterationTime(elapsed);
        m_total += elapsed;
    }

    ~Stopwatch()
    {
        seconds[{m_name, static_cast<int>(m_state.range(0))}] = m_total / static_cast<double>(m_state.iterations());
    }

private:
    benchmark::State& m_state;
    char m_name;
    double m_total = 0;
};

void mergeOneScan(benchmark::State& state)
{
    IdentifierSource identifiers;
    const QList<CWNetwork> results = syntheticResults(static_cast<int>(state.range(0)));
    AccessPoints known = knownAfter(results, fullHistory, identifiers);
    int second = fullHistory;
    Stopwatch watch(state, 'm');
    for (auto _ : state) {
        const ScanCycle cycle{
            .results = results, .scanTime = TimePoint(std::chrono::seconds(++second)), .currentBSSID = {}};
        AccessPoints merged;
        watch.time([&] { merged = mergeScan(known, cycle, [] { return fullHistory; }, identifiers); });
        known = merged;
    }
}

/// Copies every history as it lies into one block that is already mapped.
void copyHistoryBytes(benchmark::State& state)
{
    IdentifierSource identifiers;
    const AccessPoints known =
        knownAfter(syntheticResults(static_cast<int>(state.range(0))), fullHistory, identifiers);
    constexpr std::size_t bytesEach = fullHistory * sizeof(SignalHistory);
    std::vector<char> block(bytesEach * static_cast<std::size_t>(known.networkHistory.size()));
    Stopwatch watch(state, 'c');
    for (auto _ : state) {
        watch.time([&] {
            char* to = block.data();
            for (const auto& [bssid, history] : known.networkHistory) {
                std::memcpy(to, history.begin(), bytesEach);
                to += bytesEach;
            }
            benchmark::DoNotOptimize(block.data());
        });
    }
}

} // namespace

BENCHMARK(mergeOneScan)->Arg(1'000)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(copyHistoryBytes)->Arg(1'000)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::printf("merge / copy of 10,000 histories: %.2f (at most 4)\n", seconds[{'m', 10'000}] / seconds[{'c', 10'000}]);
    std::printf("merge of 10,000 / of 1,000: %.2f (at most 12)\n", seconds[{'m', 10'000}] / seconds[{'m', 1'000}]);
    return 0;
}
