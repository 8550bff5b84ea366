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

class WiFiScannerListTest : public testing::Test, public Engine
{
protected:
    /// One cycle; weak first, so that neither the names nor the addresses are in signal order.
    void hearThree()
    {
        cycle({network(u"aa"_s, u"beta"_s, -80), network(u"bb"_s, u"Alpha"_s, -70),
               network(u"cc"_s, u"gamma"_s, -40)});
    }

    void selectFirst()
    {
        selection.select(scanner->networks().first());
        main.drain();
    }
};

} // namespace

TEST_F(WiFiScannerListTest, AScanBringsBackTheScanOrder)
{
    wifi.air.bssid = u"aa"_s;
    hearThree();
    const QStringList scanOrder{u"aa"_s, u"cc"_s, u"bb"_s};
    EXPECT_EQ(listedBSSIDs(), scanOrder);
    scanner->setSortOption(SortOption::ssid);
    EXPECT_EQ(listedBSSIDs(), scanOrder) << "published on a later turn";
    main.drain();
    EXPECT_EQ(listedBSSIDs(), QStringList({u"aa"_s, u"bb"_s, u"cc"_s}));
    hearThree();
    EXPECT_EQ(listedBSSIDs(), scanOrder);
    EXPECT_EQ(scanner->sortOption(), SortOption::ssid);
}

TEST_F(WiFiScannerListTest, HidesAndShows)
{
    hearThree();
    scanner->hideNetwork(u"cc"_s);
    scanner->hideNetwork(u"cc"_s);
    main.drain();
    EXPECT_EQ(listedBSSIDs().size(), 3) << "hidden ones are listed too";
    scanner->setShowHiddenNetworks(false);
    main.drain();
    EXPECT_EQ(listedBSSIDs(), QStringList({u"bb"_s, u"aa"_s}));
    hearThree();
    EXPECT_EQ(listedBSSIDs(), QStringList({u"bb"_s, u"aa"_s}));
    scanner->unhideNetwork(u"cc"_s);
    main.drain();
    EXPECT_EQ(listedBSSIDs(), QStringList({u"cc"_s, u"bb"_s, u"aa"_s}));
    EXPECT_EQ(loadHiddenBSSIDs(defaults), QStringList()) << "both entries are removed";
}

TEST_F(WiFiScannerListTest, ForgetsOnClearButKeepsHiddenListAndSelection)
{
    hearThree();
    scanner->hideNetwork(u"aa"_s);
    selectFirst();
    scanner->clearNetworks();
    EXPECT_TRUE(scanner->allNetworks().isEmpty());
    EXPECT_TRUE(scanner->networkHistory().isEmpty());
    EXPECT_TRUE(scanner->lastSeenTimestamp().isEmpty());
    EXPECT_EQ(scanner->networks().size(), 3) << "the list is published on a later turn";
    main.drain();
    EXPECT_TRUE(scanner->networks().isEmpty());
    EXPECT_EQ(selection.selectedBSSID(), u"cc"_s);
    EXPECT_TRUE(scanner->isHidden(u"aa"_s));
}

TEST_F(WiFiScannerListTest, AssertsTheSelectionAfterEveryCycle)
{
    hearThree();
    selectFirst();
    QSignalSpy selected(&selection, &SelectionStore::selectedBSSIDChanged);
    const auto timesAsserted = [&] {
        main.drain();
        selected.clear();
        cycle({});
        EXPECT_EQ(selection.selectedBSSID(), u"cc"_s);
        return selected.count();
    };
    EXPECT_EQ(timesAsserted(), 2) << "with the applied map and with the published list";
    scanner->hideNetwork(u"cc"_s);
    scanner->setShowHiddenNetworks(false);
    EXPECT_EQ(timesAsserted(), 1) << "hidden and not listed, but still in the map";
    scanner->clearNetworks();
    EXPECT_EQ(timesAsserted(), 0);
}
