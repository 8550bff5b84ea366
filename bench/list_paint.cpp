// From a published list to its picture on the screen, with a window's height of rows visible. Run it with
// QT_QPA_PLATFORM=offscreen: rows are painted into memory, as they are on a screen without a graphics card.

#include "CpuTime.h"
#include "SyntheticNetworks.h"
#include "ui/main/NetworkListView.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace aerolith {

namespace {

/// A scan later: every signal has moved a little, and the list is in the order of the signals.
WiFiNetworkList drifted(WiFiNetworkList networks, std::mt19937& random)
{
    for (WiFiNetwork& network : networks) {
        network.rssi += static_cast<qint64>(random() % 7) - 3;
    }
    std::sort(networks.begin(), networks.end(),
              [](const WiFiNetwork& a, const WiFiNetwork& b) { return a.rssi > b.rssi; });
    return networks;
}

/// What two scans publish in turn.
struct Scans
{
    explicit Scans(const benchmark::State& state)
    {
        std::mt19937 random(42);
        lists[0].networks = drifted(syntheticList(static_cast<int>(state.range(0))), random);
        lists[1].networks = drifted(lists[0].networks, random);
    }

    ShownNetworks lists[2];
};

void prepare(NetworkListView& view)
{
    view.resize(320, 600);
    view.show();
    QApplication::processEvents();
}

void showAndPaint(NetworkListView& view, const ShownNetworks& shown)
{
    view.showNetworks(shown);
    view.viewport()->repaint();
}

void publishInTurn(benchmark::State& state, const char* name, const Scans& scans)
{
    NetworkListView view;
    prepare(view);
    showAndPaint(view, scans.lists[0]);
    int turn = 0;
    CpuTimer timer(state, name, state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        timer.time([&] { showAndPaint(view, scans.lists[++turn % 2]); });
    }
}

/// A scan that changes every signal and with them the order.
void publishReordered(benchmark::State& state)
{
    publishInTurn(state, "reordered", Scans(state));
}

/// A scan that changes one signal in ten and nothing else.
void publishInPlace(benchmark::State& state)
{
    Scans scans(state);
    scans.lists[1] = scans.lists[0];
    for (qsizetype row = 0; row < scans.lists[1].networks.size(); row += 10) {
        scans.lists[1].networks[row].rssi -= 1;
    }
    publishInTurn(state, "in place", scans);
}

/// For comparison: the same rows into an empty list.
void publishCold(benchmark::State& state)
{
    const Scans scans(state);
    NetworkListView view;
    prepare(view);
    CpuTimer timer(state, "cold", state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        showAndPaint(view, {});
        timer.time([&] { showAndPaint(view, scans.lists[0]); });
    }
}

/// The painting alone: the same for any number of rows.
void paintVisibleRows(benchmark::State& state)
{
    const Scans scans(state);
    NetworkListView view;
    prepare(view);
    showAndPaint(view, scans.lists[0]);
    CpuTimer timer(state, "paint", state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        timer.time([&] { view.viewport()->repaint(); });
    }
}

BENCHMARK(publishReordered)->Arg(1'000)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(publishInPlace)->Arg(1'000)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(publishCold)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(paintVisibleRows)->Arg(1'000)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace aerolith

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    aerolith::printFrames("10,000 rows", {"reordered", "in place", "cold", "paint"}, 10'000);
    return 0;
}
