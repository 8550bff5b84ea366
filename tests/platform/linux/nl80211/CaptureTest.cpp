// Replays what a kernel said of 54 kinds of access point (tests/data/radio): scan.nl is its dump,
// iw-scan-dump.txt how another program read the same list, manifest.tsv how each access point was set up.

#include "platform/linux/nl80211/NetworkFromEntry.h"
#include "platform/linux/nl80211/SupportedChannels.h"

#include <QFile>
#include <QMap>

#include <gtest/gtest.h>

#include <cstring>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {
namespace {

QByteArray dataFile(const char* name)
{
    QFile file(QStringLiteral(AEROLITH_RADIO_DATA "/") + QLatin1StringView(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

/// By address.
QMap<QString, CWNetwork> capturedNetworks()
{
    QMap<QString, CWNetwork> networks;
    const auto entries = decodeBssEntries(bytesOf(dataFile("scan.nl")));
    EXPECT_TRUE(entries.ok());
    for (const BssEntry& entry : entries.value()) {
        const CWNetwork network = networkFromEntry(entry);
        networks.insert(*network.bssid, network);
    }
    return networks;
}

/// Labels of the manifest, by address.
QMap<QString, QString> labels()
{
    QMap<QString, QString> byAddress;
    for (const QByteArray& line : dataFile("manifest.tsv").split('\n')) {
        const QList<QByteArray> columns = line.split('\t');
        if (columns.size() > 2 && columns[2] == "ok") {
            byAddress.insert(QString::fromLatin1(columns[1]), QString::fromLatin1(columns[0]));
        }
    }
    return byAddress;
}

/// The name as bytes from the way `iw` prints it: without a name where it is all zeros.
QByteArray unescaped(const QByteArray& printed)
{
    QByteArray name;
    for (qsizetype at = 0; at < printed.size(); ++at) {
        if (printed.mid(at, 2) == "\\x") {
            name.append(char(printed.mid(at + 2, 2).toInt(nullptr, 16)));
            at += 3;
        } else {
            name.append(printed[at]);
        }
    }
    return name.count('\0') == name.size() ? QByteArray() : name;
}

/// Everything after `key` on its line.
QByteArray printedAfter(const QByteArray& text, const char* key)
{
    const qsizetype at = text.indexOf(key);
    const qsizetype from = at + static_cast<qsizetype>(std::strlen(key));
    return at < 0 ? QByteArray() : text.mid(from, text.indexOf('\n', from) - from);
}

TEST(Capture, ReadsLikeAnotherReaderOfTheSameBytes)
{
    const QMap<QString, CWNetwork> networks = capturedNetworks();
    EXPECT_EQ(networks.size(), 54);
    const QList<QByteArray> printed = ('\n' + dataFile("iw-scan-dump.txt"))
                                          .split('\0')
                                          .first()
                                          .replace("\nBSS ", "\n\x1f")
                                          .split('\x1f')
                                          .mid(1);
    ASSERT_EQ(printed.size(), networks.size());
    for (const QByteArray& text : printed) {
        const QString address = QString::fromLatin1(text.first(17));
        SCOPED_TRACE(address.toStdString());
        ASSERT_TRUE(networks.contains(address));
        const CWNetwork& network = networks[address];
        EXPECT_EQ(network.ssidData, unescaped(printedAfter(text, "\tSSID: ")));
        EXPECT_EQ(network.rssiValue, printedAfter(text, "\tsignal: ").split('.').first().toLongLong());
        EXPECT_EQ(network.beaconInterval,
                  printedAfter(text, "\tbeacon interval: ").split(' ').first().toLongLong());
        EXPECT_EQ(network.countryCode.value_or(QString()),
                  QString::fromLatin1(
                      printedAfter(text, "\tCountry: ").first(text.contains("\tCountry: ") ? 2 : 0)));
        EXPECT_EQ(network.ibss, printedAfter(text, "\tcapability: ").contains("IBSS"));
        EXPECT_EQ(network.supportsPHYMode(4), text.contains("HT capabilities:\n"));
        EXPECT_EQ(network.supportsPHYMode(5), text.contains("VHT capabilities:\n"));
        EXPECT_EQ(network.supportsPHYMode(6), text.contains("HE capabilities:\n"));
        EXPECT_EQ(network.supportsPHYMode(2), text.contains(" 11.0"));
        const bool low = printedAfter(text, "\tfreq: ").startsWith('2');
        EXPECT_EQ(network.supportsPHYMode(low ? 3 : 1), text.contains(" 54.0"));
        const QByteArray primary =
            printedAfter(text, text.contains("DS Parameter set: channel ") ? "DS Parameter set: channel "
                                                                           : "primary channel: ");
        if (!primary.isEmpty()) {
            EXPECT_EQ(network.wlanChannel->channelNumber, primary.toLongLong());
        }
        const bool upper = text.contains("VHT operation:\n") && !text.contains(" * channel width: 0 (");
        const bool half = text.contains("secondary channel offset: above") ||
                          text.contains("secondary channel offset: below");
        if (!upper) {
            EXPECT_EQ(network.wlanChannel->channelWidth,
                      half && text.contains("STA channel width: any") ? 2 : 1);
        }
    }
}

TEST(Capture, TellsEveryKindOfAccessPoint)
{
    // Label: channel/width code, PHY codes, security codes. Where a label is missing, its row is the default
    // of the table: 20 MHz, DSSS and OFDM at 2.4 GHz, open.
    struct Kind
    {
        const char* label;
        const char* facts;
    };

    static constexpr std::array kinds{
        Kind{"n40-24", "1/2 234 0"},
        Kind{"b-only", "3/1 2 0"},
        Kind{"g-ofdm", "4/1 3 0"},
        Kind{"ax20-24", "11/1 2346 0"},
        Kind{"n20-5", "36/1 14 0"},
        Kind{"n40-5", "36/2 14 0"},
        Kind{"ac20", "40/1 145 0"},
        Kind{"ac40", "44/2 145 0"},
        Kind{"ac80", "36/3 145 0"},
        Kind{"ac160", "36/4 145 0"},
        Kind{"ac80p80", "36/4 145 0"},
        Kind{"ax80", "149/3 1456 0"},
        Kind{"ax160", "100/4 1456 0"},
        Kind{"hidden1", "5/1 23 0"},
        Kind{"wep", "10/1 23 1"},
        Kind{"wpa-tkip", "10/1 23 2,5"},
        Kind{"wpa-mixed", "10/1 234 2,3,4,5"},
        Kind{"wpa2", "12/1 234 4,5"},
        Kind{"wpa2-sha256", "12/1 234 4,5"},
        Kind{"wpa2-wpa3", "12/1 234 4,5,11,13"},
        Kind{"wpa3", "13/1 234 5,11"},
        Kind{"owe", "13/1 234 14"},
        Kind{"owe-trans-owe", "13/1 23 14"},
        Kind{"eap-wpa2", "161/1 14 9,10"},
        Kind{"eap-mixed", "2/1 23 7,8,9,10"},
        Kind{"eap-wpa1", "2/1 23 7,10"},
        Kind{"eap-wpa3", "161/1 14 10,12"},
        Kind{"eap-192", "161/1 14 10,12"},
        Kind{"beacon1000", "165/1 1 0"},
    };
    const QMap<QString, CWNetwork> networks = capturedNetworks();
    const QMap<QString, QString> byAddress = labels();
    for (const Kind& kind : kinds) {
        const CWNetwork network = networks[byAddress.key(QLatin1StringView(kind.label))];
        ASSERT_TRUE(network.wlanChannel) << kind.label;
        QString modes;
        QStringList security;
        for (int code = 0; code < 15; ++code) {
            modes += network.supportsPHYMode(code) ? QString::number(code) : QString();
            security += network.supportsSecurity(code) ? QStringList(QString::number(code)) : QStringList();
        }
        const QString facts = u"%1/%2 %3 %4"_s.arg(network.wlanChannel->channelNumber)
                                  .arg(network.wlanChannel->channelWidth)
                                  .arg(modes, security.join(u','));
        EXPECT_EQ(facts.toStdString(), kind.facts) << kind.label;
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
