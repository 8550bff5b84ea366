// From a list that the scanner publishes to the picture of the whole window, with the details of an access
// point open beside it. Run it with QT_QPA_PLATFORM=offscreen: widgets are painted into memory, as they are
// on a screen without a graphics card.

#include "CpuTime.h"
#include "SyntheticNetworks.h"
#include "support/Engine.h"
#include "support/FakeDesktop.h"
#include "ui/main/MainWindow.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <random>

namespace aerolith {

namespace {

/// Enough to fill the histories.
constexpr int cyclesBefore = 50;

/// The window on an engine that the benchmark drives cycle by cycle.
class OpenWindow
{
public:
    explicit OpenWindow(int count) : m_results(syntheticResults(count))
    {
        m_engine.defaults.setInteger(cyclesBefore, QStringLiteral("historyLimit"));
        m_window.resize(1200, 800);
        m_window.show();
        for (int cycle = 0; cycle < cyclesBefore; ++cycle) {
            scan();
        }
        m_engine.selection.select(m_engine.scanner->networks().first());
        publish();
        showAndPaint();
    }

    /// Every signal has moved a little, and with them the order. The scanner has yet to be told.
    void scan()
    {
        for (CWNetwork& result : m_results) {
            result.rssiValue += static_cast<qint64>(m_random() % 7) - 3;
        }
        m_engine.main.advance(Seconds(10));
        m_engine.wifi.air.scan = m_results;
        m_engine.scanner->scanNetworks();
        m_engine.main.drain();
        m_engine.scanTasks.runOne();
    }

    void publish() { m_engine.main.drain(); }

    /// The window paints what has changed, almost all of it, on the same turn of the event loop.
    void showAndPaint() { QApplication::processEvents(); }

private:
    QList<CWNetwork> m_results;
    std::mt19937 m_random{42};
    Engine m_engine;
    FakeDesktop m_desktop;
    DateTexts m_texts{UserLocale()};
    FileExporter m_exporter{m_engine.log};
    MainWindow m_window{*m_engine.scanner,
                        {.userDefaults = m_engine.defaults,
                         .wifiClient = m_engine.wifi,
                         .desktop = m_desktop.services(),
                         .log = m_engine.log,
                         .detail = {m_engine.main, m_texts, m_exporter}}};
};

/// What the views do about a publish.
void showPublished(benchmark::State& state)
{
    OpenWindow window(static_cast<int>(state.range(0)));
    CpuTimer timer(state, "views", state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        window.scan();
        window.publish();
        timer.time([&] { window.showAndPaint(); });
    }
}

/// The whole of a cycle on the main thread: the scanner takes the merged records over, orders and publishes
/// them, and the views show them.
void applyAndShow(benchmark::State& state)
{
    OpenWindow window(static_cast<int>(state.range(0)));
    CpuTimer timer(state, "cycle", state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        window.scan();
        timer.time([&] {
            window.publish();
            window.showAndPaint();
        });
    }
}

BENCHMARK(showPublished)->Arg(1'000)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(applyAndShow)->Arg(1'000)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace aerolith

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    aerolith::printFrames("10,000 access points", {"views", "cycle"}, 10'000);
    return 0;
}
