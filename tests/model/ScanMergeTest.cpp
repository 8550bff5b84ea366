#include "model/ScanMerge.h"

#include "model/Bssids.h"
#include "support/FakeWiFi.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

using namespace aerolith;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// Merges cycle after cycle, as long as nothing else touches the maps.
class Merger
{
public:
    const AccessPoints& cycle(const QList<CWNetwork>& results,
                              const std::optional<QString>& currentBSSID = {})
    {
        m_time += 10s;
        m_known = mergeScan(
            m_known, {.results = results, .scanTime = m_time, .currentBSSID = currentBSSID},
            [this] { return limit; }, m_identifiers);
        return m_known;
    }

    [[nodiscard]] TimePoint time() const { return m_time; }

    qint64 limit = 20;

private:
    TimePoint m_time{1'800'000'000s};
    AccessPoints m_known;
    IdentifierSource m_identifiers;
};

QString rssis(const SignalHistoryList& history)
{
    QStringList texts;
    for (const SignalHistory& sample : history) {
        texts.append(QString::number(sample.rssi));
    }
    return texts.join(u' ');
}

} // namespace

TEST(ScanMerge, MarksAMissedCycleAndKeepsTheLastSighting)
{
    Merger merger;
    const AccessPoints before = merger.cycle({network(u"aa"_s, u"A"_s, -40)}, u"aa"_s);
    const TimePoint sighted = merger.time();
    const AccessPoints& points = merger.cycle({network(u"bb"_s, u"B"_s, -50)}, u"bb"_s);
    const WiFiNetwork missed = points.allNetworks.find(u"aa"_s).value();
    EXPECT_EQ(rssis(missed.signalHistory), u"-40 -100"_s);
    EXPECT_EQ(missed.signalHistory.last().noise, -90);
    EXPECT_EQ(missed.signalHistory.last().timestamp, merger.time());
    EXPECT_EQ(missed.signalHistory.first().noise, -90);
    EXPECT_EQ(missed.signalHistory.first().timestamp, sighted);
    EXPECT_EQ(missed.rssi, -40);
    EXPECT_EQ(missed.timestamp, sighted);
    EXPECT_EQ(points.lastSeenTimestamp.find(u"aa"_s).value(), sighted);
    EXPECT_TRUE(missed.isCurrentNetwork) << "recomputed only when it is heard again";
    merger.cycle({network(u"aa"_s, u"A"_s)}, u"bb"_s);
    EXPECT_FALSE(points.allNetworks.find(u"aa"_s).value().isCurrentNetwork);
    EXPECT_TRUE(points.allNetworks.find(u"bb"_s).value().isCurrentNetwork);

    EXPECT_EQ(before.allNetworks.size(), 1) << "an older copy stays as it was";
    EXPECT_EQ(rssis(before.allNetworks.find(u"aa"_s).value().signalHistory), u"-40"_s);
}

TEST(ScanMerge, DoesWhatAPlainModelDoesWhateverComes)
{
    // The model: one list of RSSI values for each access point, cut from the front.
    std::mt19937 random(7);
    const auto below = [&](unsigned end) { return static_cast<qint64>(random() % end); };
    Merger merger;
    std::map<QString, QStringList> expected;
    std::map<QString, qint64> last;
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        merger.limit = below(10) == 0 ? below(25) - 2 : merger.limit;
        QList<CWNetwork> results;
        std::map<QString, QStringList> heard;
        for (qint64 i = below(12); i > 0; --i) {
            const QString bssid = QString::number(below(30));
            const qint64 rssi = -below(90);
            const bool isNamed = below(6) != 0;
            results.append(network(bssid, isNamed ? u"N"_s : u"Unknown"_s, rssi));
            if (isNamed) {
                heard[bssid].append(QString::number(rssi));
                last[bssid] = rssi;
                expected[bssid];
            }
        }
        const AccessPoints& points = merger.cycle(results);
        ASSERT_EQ(bssidsOf(points.allNetworks), bssidsOf(points.networkHistory));
        ASSERT_EQ(bssidsOf(points.allNetworks), bssidsOf(points.lastSeenTimestamp));
        ASSERT_EQ(points.allNetworks.size(), static_cast<qsizetype>(expected.size()));
        for (auto& [bssid, samples] : expected) {
            samples += heard.contains(bssid) ? heard[bssid] : QStringList(u"-100"_s);
            samples = samples.last(std::min<qsizetype>(samples.size(), std::max<qint64>(merger.limit, 0)));
            ASSERT_EQ(rssis(points.networkHistory.find(bssid).value()), samples.join(u' '));
            const WiFiNetwork& record = points.allNetworks.find(bssid).value();
            ASSERT_EQ(rssis(record.signalHistory), samples.join(u' '));
            ASSERT_EQ(record.rssi, last[bssid]) << "of two sightings the last one";
        }
    }
}

TEST(BssidMap, FindsAddressesAndOtherTexts)
{
    const QStringList ascending{u"00:00:00:00:00:01"_s,
                                u"0a:00:00:00:00:ff"_s,
                                u"0a:00:00:00:01:00"_s,
                                u"ff:ff:ff:ff:ff:ff"_s,
                                u""_s,
                                u"0A:00:00:00:00:FF"_s,
                                u"0a-00-00-00-00-ff"_s,
                                u"wlan"_s};
    // Added in another order, in two steps.
    const QList<qsizetype> places{6, 2, 0, 7, 3, 1, 5, 4};
    BssidIndex index;
    QStringList added;
    for (const qsizetype rank : places) {
        added.append(ascending[rank]);
    }
    index.add(added.first(3));
    index.add(added.sliced(3));
    const BssidMap<qsizetype> map(index, places);
    EXPECT_EQ(bssidsOf(map), ascending);
    for (qsizetype rank = 0; rank < ascending.size(); ++rank) {
        ASSERT_TRUE(map.find(ascending[rank]) != map.end()) << ascending[rank].toStdString();
        EXPECT_EQ(map.find(ascending[rank]).value(), rank);
    }
    EXPECT_EQ(map.find(u"0a:00:00:00:01:01"_s), map.end());
    EXPECT_EQ(map.find(u"x"_s), map.end());
}

TEST(BssidMap, ReadsItsValuesByTheOrderOfAnother)
{
    BssidIndex older;
    older.add({u"bb"_s, u"aa"_s});
    BssidIndex newer;
    newer.add({u"aa"_s, u"cc"_s, u"bb"_s});
    const BssidMap<int> map(older, {2, 1});
    EXPECT_EQ(map.valuesFor(older), (QList<int>{2, 1}));
    EXPECT_EQ(map.valuesFor(newer), (QList<int>{1, 0, 2}));
}
