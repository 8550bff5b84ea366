// The CSV text of a list against writing the same rows, already formatted, into a string.

#include "CpuTime.h"
#include "SyntheticNetworks.h"
#include "export/NetworkCsv.h"

#include <cstdio>

using namespace aerolith;

namespace {

constexpr int count = 10'000;

void listCsv(benchmark::State& state)
{
    const WiFiNetworkList list = syntheticList(count);
    CpuTimer timer(state, "csv", count);
    for (auto _ : state) {
        timer.time([&] { benchmark::DoNotOptimize(networkListCSV(list)); });
    }
}

void writePreformatted(benchmark::State& state)
{
    const QString text = networkListCSV(syntheticList(count));
    const QStringList rows = text.split(u'\n');
    CpuTimer timer(state, "preformatted", count);
    for (auto _ : state) {
        timer.time([&] {
            QString written;
            written.reserve(text.size());
            for (const QString& row : rows) {
                written += row;
                written += u'\n';
            }
            benchmark::DoNotOptimize(written);
        });
    }
}

} // namespace

BENCHMARK(listCsv)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writePreformatted)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::printf("list CSV / the same rows preformatted: %.2f (at most 5)\n",
                measured()[{"csv", count}].fastest / measured()[{"preformatted", count}].fastest);
    return 0;
}
