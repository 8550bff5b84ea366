// The engine on a simulated radio in the hands of a user without a plan: what must hold after every cycle,
// whatever came in between. AEROLITH_STRESS_CYCLES and AEROLITH_STRESS_SEED make other runs of it.

#include "model/Bssids.h"
#include "model/HiddenList.h"
#include "model/Ordering.h"
#include "model/SettingKeys.h"
#include "platform/simulated/SimulatedLocationManager.h"
#include "platform/simulated/SimulatedWiFiClient.h"
#include "support/Engine.h"
#include "support/Printing.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>
#include <semaphore>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

constexpr auto authorized = CLAuthorizationStatus::authorizedWhenInUse;
constexpr int shortRun = 5'000;
/// From here on the run is long enough to tell growth from warming up.
constexpr int longRun = 100'000;
constexpr qint64 mostGrowth = 4'194'304;

int fromEnvironment(const char* name, int otherwise)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok && value > 0 ? value : otherwise;
}

qint64 residentBytes()
{
    QFile file(u"/proc/self/statm"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * getpagesize()
                                          : 0;
}

class Dice
{
public:
    explicit Dice(int seed) : m_numbers(static_cast<unsigned>(seed)) {}

    int below(int end) { return static_cast<int>(m_numbers() % static_cast<unsigned>(end)); }

    bool oneIn(int times) { return below(times) == 0; }

private:
    std::mt19937 m_numbers;
};

QString address(int number)
{
    return u"02:00:00:00:%1:%2"_s.arg(number * 37 % 100, 2, 10, QChar(u'0')).arg(number, 2, 10, QChar(u'0'));
}

/// Some of the same access points in every cycle: several at once under one address, some without an address
/// or a name, none at all, or a scan that fails.
Scenario air(Dice& dice)
{
    constexpr int accessPoints = 20;
    constexpr int cycles = 60;
    Scenario scenario;
    scenario.afterLast = AfterLast::loop;
    for (int i = 0; i < cycles; ++i) {
        ScenarioCycle cycle;
        if (dice.oneIn(12)) {
            cycle.error = Error{u"The scan failed"_s};
        } else if (dice.oneIn(2)) {
            cycle.joined = ScenarioAssociation{u"Net 1"_s, address(dice.below(accessPoints))};
        }
        const int heard = cycle.error ? 0 : dice.below(accessPoints + 4);
        for (int k = 0; k < heard; ++k) {
            const int number = dice.below(accessPoints);
            CWNetwork found = network(address(number), u"Net %1"_s.arg(number % 7), -30 - dice.below(60));
            found.wlanChannel = CWChannel{1 + dice.below(40), 1};
            found.securityCodes.insert(dice.below(14));
            if (dice.oneIn(15)) {
                found.bssid.reset();
            } else if (dice.oneIn(15)) {
                found.ssid.reset();
            }
            cycle.networks.append(found);
        }
        scenario.cycles.append(cycle);
    }
    return scenario;
}

/// Runs the scan queue's tasks on a thread of their own, one at a time, beside whatever the test does.
class ScanThread
{
public:
    explicit ScanThread(ManualSerialTasks& tasks)
        : m_thread([this, &tasks] {
            for (m_begin.acquire(); !m_over; m_begin.acquire()) {
                tasks.runOne();
                m_end.release();
            }
        })
    {
    }

    ScanThread(const ScanThread&) = delete;
    ScanThread& operator=(const ScanThread&) = delete;

    ~ScanThread()
    {
        m_over = true;
        m_begin.release();
        m_thread.join();
    }

    /// A task is waiting.
    void begin() { m_begin.release(); }

    void finish() { m_end.acquire(); }

private:
    std::binary_semaphore m_begin{0};
    std::binary_semaphore m_end{0};
    bool m_over = false;
    std::thread m_thread;
};

class Stress : private ManualSurroundings
{
public:
    explicit Stress(int seed) : m_dice(seed)
    {
        m_scanner.emplace(m_selection, around(m_wifiClient, m_locationManager));
        m_scanThread.emplace(scanTasks);
    }

    /// One cycle, with the user at work before it, while it runs, and before it is applied. The clock, which
    /// the merge reads, stands still meanwhile.
    void cycle()
    {
        m_before = m_selection.selectedBSSID();
        m_chosen.clear();
        m_largestLimit = std::max<qint64>(m_scanner->historyLimit(), 0);
        main.advance(Seconds(0.5 * m_dice.below(6)));
        act(m_dice.below(3));
        m_scanner->scanNetworks();
        m_scanThread->begin();
        act(m_dice.below(8));
        m_scanThread->finish();
        act(m_dice.below(3));
        main.drain();
        log.take();
    }

    void check()
    {
        const auto networks = m_scanner->allNetworks();
        const auto histories = m_scanner->networkHistory();
        ASSERT_EQ(bssidsOf(networks), bssidsOf(histories));
        ASSERT_EQ(bssidsOf(networks), bssidsOf(m_scanner->lastSeenTimestamp()));
        // A cycle that finds nothing out cuts no history.
        const bool isCut = m_scanner->status() == ScannerStatus::idle;
        m_bound = isCut ? m_largestLimit : std::max(m_bound, m_largestLimit);
        for (const auto entry : networks) {
            checkHistory(entry.value, histories.find(entry.bssid).value());
        }
        checkList(networks);
        const auto selected = m_selection.selectedBSSID();
        ASSERT_TRUE(selected == m_before || m_chosen.contains(selected));
    }

private:
    void act(int times)
    {
        for (int i = 0; i < times; ++i) {
            m_actions[static_cast<std::size_t>(m_dice.below(static_cast<int>(m_actions.size())))]();
        }
    }

    void hideOrShow()
    {
        const QString bssid = address(m_dice.below(20));
        if (m_scanner->isHidden(bssid)) {
            m_scanner->unhideNetwork(bssid);
        } else {
            m_scanner->hideNetwork(bssid);
        }
    }

    void select()
    {
        if (const auto& listed = m_scanner->networks(); !listed.isEmpty()) {
            const WiFiNetwork& record = listed.at(m_dice.below(static_cast<int>(listed.size())));
            m_selection.select(record);
            m_chosen.append(record.bssid);
        }
    }

    void setHistoryLimit()
    {
        const qint64 limit = m_dice.below(30) - 2;
        m_largestLimit = std::max(m_largestLimit, limit);
        defaults.setInteger(limit, SettingKeys::historyLimit);
    }

    void setAccess()
    {
        const bool withdrawn = m_dice.oneIn(2);
        m_locationManager.setAuthorization(withdrawn ? CLAuthorizationStatus::denied : authorized);
        if (withdrawn) {
            m_chosen.append(std::nullopt);
        }
    }

    void checkHistory(const WiFiNetwork& record, const SignalHistoryList& history)
    {
        ASSERT_LE(history.size(), m_bound) << record.bssid.toStdString();
        ASSERT_EQ(record.signalHistory.size(), history.size());
        ASSERT_EQ(record.signalHistory.begin(), history.begin()) << "the same samples";
        ASSERT_TRUE(std::is_sorted(history.begin(), history.end(),
                                   [](const auto& a, const auto& b) { return a.timestamp < b.timestamp; }));
        ASSERT_TRUE(history.isEmpty() || history.last().timestamp <= main.now());
    }

    /// In the order of the last scan or in the user's, whichever came last.
    void checkList(const BssidMap<WiFiNetwork>& networks)
    {
        const QStringList hidden = loadHiddenBSSIDs(defaults);
        WiFiNetworkList visible;
        for (const auto entry : networks) {
            if (m_scanner->showHiddenNetworks() || !hidden.contains(entry.bssid)) {
                visible.append(entry.value);
            }
        }
        const auto& listed = m_scanner->networks();
        ASSERT_EQ(listed.size(), visible.size());
        ASSERT_TRUE(listed == inScanOrder(visible) ||
                    listed == inOptionOrder(visible, m_scanner->sortOption(), m_collation));
    }

    Dice m_dice;
    Collation m_collation{QByteArray()};
    SharedAuthorization m_authorization = std::make_shared<std::atomic<CLAuthorizationStatus>>(authorized);
    std::shared_ptr<SimulatedInterface> m_interface =
        std::make_shared<SimulatedInterface>(air(m_dice), m_authorization);
    SimulatedWiFiClient m_wifiClient{m_interface};
    SimulatedLocationManager m_locationManager{m_authorization, authorized, main};
    SelectionStore m_selection{main};
    std::optional<WiFiScanner> m_scanner;
    std::optional<ScanThread> m_scanThread;
    /// What the user may do, each as often as the others; what stands twice, twice as often.
    const std::vector<std::function<void()>> m_actions{
        [this] { m_scanner->scanNetworks(); },
        [this] { m_scanner->clearNetworks(); },
        [this] { hideOrShow(); },
        [this] { hideOrShow(); },
        [this] { m_scanner->setShowHiddenNetworks(m_dice.oneIn(2)); },
        [this] { m_scanner->setSortOption(static_cast<SortOption>(m_dice.below(4))); },
        [this] { select(); },
        [this] { select(); },
        [this] {
            m_selection.clearSelection();
            m_chosen.append(std::nullopt);
        },
        [this] { setHistoryLimit(); },
        [this] {
            defaults.setDouble(m_dice.below(4), SettingKeys::scanInterval);
            m_scanner->startTimer();
        },
        [this] { setAccess(); },
        [this] {
            m_interface->switchPower(!m_dice.oneIn(4));
            m_interface->setPluggedIn(!m_dice.oneIn(4));
        },
        [this] { (void)m_scanner->findNetwork(u"Net 3"_s); },
        [this] { main.runOne(); },
    };
    /// Selected before the cycle, and chosen during it.
    std::optional<QString> m_before;
    QList<std::optional<QString>> m_chosen;
    /// In force at some time since the cycle began.
    qint64 m_largestLimit = 0;
    qint64 m_bound = 0;
};

} // namespace

TEST(WiFiScanner, HoldsTogetherUnderRandomUse)
{
    const int seed = fromEnvironment("AEROLITH_STRESS_SEED", 1);
    const int cycles = fromEnvironment("AEROLITH_STRESS_CYCLES", shortRun);
    std::printf("%d cycles, seed %d\n", cycles, seed);
    Stress stress(seed);
    qint64 warm = 0;
    for (int i = 0; i < cycles; ++i) {
        stress.cycle();
        stress.check();
        ASSERT_FALSE(HasFatalFailure()) << "in cycle " << i << " of seed " << seed;
        if (i == cycles / 10) {
            warm = residentBytes();
        }
    }
    if (cycles >= longRun) {
        const qint64 grown = residentBytes() - warm;
        std::printf("%lld KiB resident, %lld KiB more than after a tenth of it\n",
                    static_cast<long long>(residentBytes() / 1024), static_cast<long long>(grown / 1024));
        EXPECT_LT(grown, mostGrowth);
    }
}
