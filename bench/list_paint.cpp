// From a published list to its picture on the screen, with 10,000 rows of which a window's height is visible.
// Run it with QT_QPA_PLATFORM=offscreen: rows are painted into memory, as they are on a screen without a
// graphics card. The counter "frame" is the share of one frame at 60 Hz.

#include "ui/main/NetworkListView.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace aerolith {

namespace {

constexpr int rowCount = 10'000;
constexpr double framesPerSecond = 60;

WiFiNetworkList accessPoints()
{
    WiFiNetworkList networks;
    networks.reserve(rowCount);
    for (int i = 0; i < rowCount; ++i) {
        WiFiNetwork network;
        network.bssid = QStringLiteral("0a:10:00:00:%1:%2")
                            .arg(i >> 8 & 255, 2, 16, QChar(u'0'))
                            .arg(i & 255, 2, 16, QChar(u'0'));
        network.ssid = QStringLiteral("Network %1").arg(i);
        network.channel = 1 + i % 13;
        network.channelBand = QStringLiteral("2.4 GHz");
        network.security = QStringLiteral("WPA2, Personal");
        network.rssi = -35 - i % 60;
        networks.append(network);
    }
    return networks;
}

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
    Scans()
    {
        std::mt19937 random(42);
        lists[0].networks = drifted(accessPoints(), random);
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

void reportFrames(benchmark::State& state)
{
    state.counters["frame"] = benchmark::Counter(static_cast<double>(state.iterations()) / framesPerSecond,
                                                 benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// A scan that changes every signal and with them the order.
void publishReordered(benchmark::State& state)
{
    const Scans scans;
    NetworkListView view;
    prepare(view);
    showAndPaint(view, scans.lists[0]);
    int turn = 0;
    for ([[maybe_unused]] auto iteration : state) {
        showAndPaint(view, scans.lists[++turn % 2]);
    }
    reportFrames(state);
}

/// A scan that changes one signal in ten and nothing else.
void publishInPlace(benchmark::State& state)
{
    Scans scans;
    scans.lists[1] = scans.lists[0];
    for (int row = 0; row < rowCount; row += 10) {
        scans.lists[1].networks[row].rssi -= 1;
    }
    NetworkListView view;
    prepare(view);
    showAndPaint(view, scans.lists[0]);
    int turn = 0;
    for ([[maybe_unused]] auto iteration : state) {
        showAndPaint(view, scans.lists[++turn % 2]);
    }
    reportFrames(state);
}

/// For comparison: the same rows into an empty list.
void publishCold(benchmark::State& state)
{
    const Scans scans;
    NetworkListView view;
    prepare(view);
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        showAndPaint(view, {});
        state.ResumeTiming();
        showAndPaint(view, scans.lists[0]);
    }
    reportFrames(state);
}

/// The painting alone.
void paintVisibleRows(benchmark::State& state)
{
    const Scans scans;
    NetworkListView view;
    prepare(view);
    showAndPaint(view, scans.lists[0]);
    for ([[maybe_unused]] auto iteration : state) {
        view.viewport()->repaint();
    }
    reportFrames(state);
}

BENCHMARK(publishReordered)->Unit(benchmark::kMillisecond);
BENCHMARK(publishInPlace)->Unit(benchmark::kMillisecond);
BENCHMARK(publishCold)->Unit(benchmark::kMillisecond);
BENCHMARK(paintVisibleRows)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace aerolith

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
