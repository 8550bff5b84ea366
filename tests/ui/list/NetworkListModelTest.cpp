#include "ui/list/NetworkListModel.h"

#include "support/Printing.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// A row for each letter.
ShownNetworks shown(const QString& letters)
{
    ShownNetworks shown;
    for (const QChar letter : letters) {
        WiFiNetwork network;
        network.bssid = letter;
        shown.networks.append(network);
    }
    return shown;
}

/// The rows' letters, as a view reads them.
QString rows(const NetworkListModel& model)
{
    QString letters;
    for (int row = 0; row < model.rowCount(); ++row) {
        letters += model.index(row).data(NetworkListModel::networkRole).value<WiFiNetwork>().bssid;
    }
    return letters;
}

/// The rows announced as changed.
std::vector<int> changedRows(const QSignalSpy& dataChanged)
{
    std::vector<int> rows;
    for (const QList<QVariant>& signal : dataChanged) {
        for (int row = signal[0].toModelIndex().row(); row <= signal[1].toModelIndex().row(); ++row) {
            rows.push_back(row);
        }
    }
    return rows;
}

class NetworkListModelTest : public testing::Test
{
protected:
    NetworkListModel model{[](const WiFiNetwork& network, bool) { return network.ssid; }};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(NetworkListModelTest, CarriesWhatIsHeldToTheRowOfTheSameAccessPointInThreeStepsAtMost)
{
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy moved(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QRandomGenerator random(7);
    QString before;
    for (int round = 0; round < 200; ++round) {
        QString after = u"abcdefghijklmnopqrstuvwxyz"_s;
        std::shuffle(after.begin(), after.end(), random);
        after.truncate(random.bounded(27));
        QList<QPersistentModelIndex> held;
        for (int row = 0; row < model.rowCount(); ++row) {
            held.append(model.index(row));
        }
        model.show(shown(after));
        ASSERT_EQ(rows(model), after);
        for (int row = 0; row < before.size(); ++row) {
            ASSERT_EQ(held[row].row(), after.indexOf(before[row]))
                << (before + u" to "_s + after).toStdString();
        }
        for (QSignalSpy* step : {&inserted, &moved, &removed}) {
            ASSERT_LE(step->size(), 1);
            step->clear();
        }
        before = after;
    }
}

TEST_F(NetworkListModelTest, AnnouncesOnlyRowsThatLookDifferent)
{
    ShownNetworks networks = shown(u"abcdef"_s);
    model.show(networks);
    QSignalSpy dataChanged(&model, &QAbstractItemModel::dataChanged);
    const QSignalSpy layoutChanged(&model, &QAbstractItemModel::layoutChanged);

    // A new record of the same look: what it adds is not in the row.
    networks.networks[5].timestamp += std::chrono::seconds(10);
    model.show(networks);
    EXPECT_THAT(changedRows(dataChanged), ElementsAre());

    networks.networks[0].rssi = -71;
    networks.networks[1].isCurrentNetwork = true;
    networks.networks[3].ssid = u"renamed"_s;
    networks.hidden = {u"e"_s};
    model.show(networks);
    EXPECT_THAT(changedRows(dataChanged), ElementsAre(0, 1, 3, 4));
    EXPECT_EQ(dataChanged.size(), 2) << "one signal for each run of rows";
    EXPECT_TRUE(layoutChanged.isEmpty());
    EXPECT_TRUE(model.index(4).data(NetworkListModel::isHiddenRole).toBool());

    dataChanged.clear();
    for (WiFiNetwork& network : networks.networks) {
        network.signalHistory =
            network.signalHistory.appended({.id = QUuid::createUuid(), .timestamp = {}}, 10);
    }
    model.show(networks);
    EXPECT_THAT(changedRows(dataChanged), ElementsAre(1)) << "the joined network's history may be in its row";
}

} // namespace aerolith
