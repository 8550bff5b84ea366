// The published list: its order, what is hidden, and the selection across cycles.

#include "model/HiddenList.h"
#include "model/SettingKeys.h"
#include "support/Engine.h"
#include "support/Printing.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

/// Weak first, so that neither the names nor the addresses are in signal order.
QList<CWNetwork> threeNetworks()
{
    return {network(u"aa"_s, u"beta"_s, -80), network(u"bb"_s, u"Alpha"_s, -70),
            network(u"cc"_s, u"gamma"_s, -40)};
}

} // namespace

TEST(WiFiScannerList, AScanBringsBackTheScanOrder)
{
    Engine engine;
    engine.wifi.air.bssid = u"aa"_s;
    engine.cycle(threeNetworks());
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"aa"_s, u"cc"_s, u"bb"_s}));
    engine.scanner->setSortOption(SortOption::ssid);
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"aa"_s, u"cc"_s, u"bb"_s})) << "published on a later turn";
    engine.main.drain();
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"aa"_s, u"bb"_s, u"cc"_s}));
    engine.cycle(threeNetworks());
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"aa"_s, u"cc"_s, u"bb"_s}));
    EXPECT_EQ(engine.scanner->sortOption(), SortOption::ssid);
}

TEST(WiFiScannerList, HidesAndShows)
{
    Engine engine;
    engine.cycle(threeNetworks());
    EXPECT_FALSE(engine.scanner->isHidden(u"cc"_s));
    engine.scanner->hideNetwork(u"cc"_s);
    engine.scanner->hideNetwork(u"cc"_s);
    engine.main.drain();
    EXPECT_EQ(engine.listedBSSIDs().size(), 3) << "hidden ones are listed too";
    EXPECT_TRUE(engine.scanner->isHidden(u"cc"_s));
    engine.scanner->setShowHiddenNetworks(false);
    engine.main.drain();
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"bb"_s, u"aa"_s}));
    engine.cycle(threeNetworks());
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"bb"_s, u"aa"_s}));
    engine.scanner->unhideNetwork(u"cc"_s);
    engine.main.drain();
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"cc"_s, u"bb"_s, u"aa"_s}));
    EXPECT_EQ(loadHiddenBSSIDs(engine.defaults), QStringList()) << "both entries are removed";
}

TEST(WiFiScannerList, ForgetsOnClearButKeepsHiddenListAndSelection)
{
    Engine engine;
    engine.cycle(threeNetworks());
    engine.scanner->hideNetwork(u"aa"_s);
    engine.selection.select(engine.scanner->networks().first());
    engine.main.drain();
    engine.scanner->clearNetworks();
    EXPECT_TRUE(engine.scanner->allNetworks().isEmpty());
    EXPECT_TRUE(engine.scanner->networkHistory().isEmpty());
    EXPECT_TRUE(engine.scanner->lastSeenTimestamp().isEmpty());
    EXPECT_EQ(engine.scanner->networks().size(), 3) << "the list is published on a later turn";
    engine.main.drain();
    EXPECT_TRUE(engine.scanner->networks().isEmpty());
    EXPECT_EQ(engine.selection.selectedBSSID(), u"cc"_s);
    EXPECT_TRUE(engine.scanner->isHidden(u"aa"_s));
}

TEST(WiFiScannerList, AssertsTheSelectionAfterEveryCycle)
{
    Engine engine;
    engine.cycle(threeNetworks());
    engine.selection.select(engine.scanner->networks().first());
    engine.main.drain();
    QSignalSpy selected(&engine.selection, &SelectionStore::selectedBSSIDChanged);
    engine.cycle({});
    EXPECT_EQ(selected.count(), 2) << "with the applied map and with the published list";
    EXPECT_EQ(engine.selection.selectedBSSID(), u"cc"_s);

    engine.scanner->hideNetwork(u"cc"_s);
    engine.scanner->setShowHiddenNetworks(false);
    engine.main.drain();
    selected.clear();
    engine.cycle({});
    EXPECT_EQ(selected.count(), 1) << "hidden and not listed, but still in the map";
    EXPECT_EQ(engine.selection.selectedBSSID(), u"cc"_s);

    engine.scanner->clearNetworks();
    engine.main.drain();
    selected.clear();
    engine.cycle({});
    EXPECT_EQ(selected.count(), 0);
    EXPECT_EQ(engine.selection.selectedBSSID(), u"cc"_s);
    engine.selection.select({});
    engine.main.drain();
    EXPECT_FALSE(engine.selection.selectedBSSID());
}
