// One merge of a scan against a plain copy of the history bytes that it moves.

#include "CpuTime.h"
#include "SyntheticNetworks.h"

#include <cstdio>
#include <cstring>
#include <vector>

using namespace aerolith;

namespace {

constexpr int fullHistory = 50;

void mergeOneScan(benchmark::State& state)
{
    IdentifierSource identifiers;
    const QList<CWNetwork> results = syntheticResults(static_cast<int>(state.range(0)));
    AccessPoints known = knownAfter(results, fullHistory, identifiers);
    int second = fullHistory;
    CpuTimer timer(state, "merge", state.range(0));
    for (auto _ : state) {
        const ScanCycle cycle{
            .results = results, .scanTime = TimePoint(std::chrono::seconds(++second)), .currentBSSID = {}};
        AccessPoints merged;
        timer.time([&] {
            merged = mergeScan(
                known, cycle, [] { return fullHistory; }, identifiers);
        });
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
    CpuTimer timer(state, "copy", state.range(0));
    for (auto _ : state) {
        timer.time([&] {
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
    const auto fastest = [](const char* name, long size) { return measured()[{name, size}].fastest; };
    std::printf("merge / copy of 10,000 histories: %.2f (at most 4)\n",
                fastest("merge", 10'000) / fastest("copy", 10'000));
    std::printf("merge of 10,000 / of 1,000: %.2f (at most 12)\n",
                fastest("merge", 10'000) / fastest("merge", 1'000));
    return 0;
}
