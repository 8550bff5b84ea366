// Replays what a kernel said of 54 kinds of access point (tests/data/radio): scan.nl is its dump, facts.tsv
// how another reader understood the same list, by the command in its first line, manifest.tsv how each access
// point was set up.

#include "model/NetworkRecord.h"
#include "platform/linux/nl80211/NetworkFromEntry.h"
#include "platform/linux/nl80211/SupportedChannels.h"

#include <QFile>
#include <QMap>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {
namespace {

QByteArray dataFile(const char* name)
{
    QFile file(QStringLiteral(AEROLITH_RADIO_DATA "/") + QLatin1StringView(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

QByteArray facts(const CWNetwork& network)
{
    const QStringList columns{*network.bssid,
                              QString::fromLatin1(network.ssidData.toHex()),
                              QString::number(network.rssiValue),
                              QString::number(network.wlanChannel->channelNumber),
                              QString::number(channelWidthMHz(network.wlanChannel->channelWidth)),
                              securityDescription(network),
                              network.countryCode.value_or(QString()),
                              QString::number(network.beaconInterval),
                              network.ibss ? u"ad hoc"_s : QString(),
                              supportedPhyModes(network).join(u", "_s)};
    return columns.join(u'\t').toUtf8();
}

TEST(Capture, ReadsLikeAnotherReaderOfTheSameBytes)
{
    const auto entries = decodeBssEntries(bytesOf(dataFile("scan.nl")));
    ASSERT_TRUE(entries.ok());
    QByteArrayList read;
    for (const BssEntry& entry : entries.value()) {
        read.append(facts(networkFromEntry(entry)));
    }
    std::sort(read.begin(), read.end());
    const QByteArrayList expected = dataFile("facts.tsv").trimmed().split('\n').sliced(1);
    ASSERT_EQ(read.size(), expected.size());
    for (qsizetype row = 0; row < read.size(); ++row) {
        EXPECT_EQ(read[row].toStdString(), expected[row].toStdString());
    }
}

TEST(Capture, TellsWhatIsJoined)
{
    const auto joined = decodeBssEntries(bytesOf(dataFile("scan-joined.nl")));
    ASSERT_TRUE(joined.ok() && joinedEntry(joined.value()));
    EXPECT_EQ(joinedEntry(joined.value())->frequency, 5180U);
}

TEST(Capture, ListsTheChannelsOfARadio)
{
    const auto channels = decodeSupportedChannels(bytesOf(dataFile("wiphy.nl")));
    ASSERT_TRUE(channels.ok());
    QMap<qint64, QString> widths;
    for (const CWChannel& channel : channels.value()) {
        widths[channel.channelNumber] += QString::number(channel.channelWidth);
    }
    EXPECT_EQ(widths.size(), 13 + 24) << "14 and those beyond 165 are forbidden";
    EXPECT_EQ(widths[1], u"12"_s);
    EXPECT_EQ(widths[13], u"12"_s);
    EXPECT_EQ(widths[36], u"1234"_s);
    EXPECT_EQ(widths[165], u"123"_s) << "no 160 MHz above 5735 MHz";
}

} // namespace
} // namespace aerolith::nl80211
