#include "model/Ordering.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <limits>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QString ssid;
    qint64 rssi = -50;
    bool current = false;
    qint64 channel = 1;
    QString security = {};
};

WiFiNetworkList listOf(const QList<Row>& rows)
{
    WiFiNetworkList list;
    for (const Row& row : rows) {
        WiFiNetwork& record = list.emplaceBack();
        record.ssid = row.ssid;
        record.rssi = row.rssi;
        record.isCurrentNetwork = row.current;
        record.channel = row.channel;
        record.security = row.security;
    }
    return list;
}

QString names(const WiFiNetworkList& list)
{
    QStringList names;
    for (const WiFiNetwork& record : list) {
        names.append(record.ssid);
    }
    return names.join(u' ');
}

QString byOption(const QList<Row>& rows, SortOption option, const char* locale = "en_US")
{
    return names(inOptionOrder(listOf(rows), option, Collation(locale)));
}

} // namespace

TEST(Ordering, ScanOrderIsCurrentThenStrongestThenAsGiven)
{
    EXPECT_EQ(names(inScanOrder(listOf({{u"a"_s, -70}, {u"b"_s, -40}, {u"c"_s, -70}, {u"d"_s, -90, true}}))),
              u"d b a c"_s);
    constexpr qint64 least = std::numeric_limits<qint64>::min();
    EXPECT_EQ(names(inScanOrder(listOf({{u"a"_s, least}, {u"b"_s, least + 1}, {u"c"_s, 5}}))), u"c b a"_s);
}

TEST(Ordering, NamesFollowTheUsersAlphabetAndIgnoreCase)
{
    EXPECT_EQ(byOption({{u"gamma"_s}, {u"Beta"_s}, {u"alpha"_s}}, SortOption::ssid), u"alpha Beta gamma"_s);
    EXPECT_EQ(byOption({{u"cafe"_s}, {u"Cafe"_s}, {u"cafe"_s}}, SortOption::ssid), u"cafe Cafe cafe"_s);
    const QList<Row> rows{{u"Ö"_s}, {u"Z"_s}, {u"O"_s}};
    for (const auto& [locale, order] :
         {std::pair("de_DE", u"O Ö Z"_s), {"sv_SE", u"O Z Ö"_s}, {"xx_nowhere", u"O Ö Z"_s}}) {
        EXPECT_EQ(byOption(rows, SortOption::ssid, locale), order) << locale;
    }
}

TEST(Ordering, ChannelAscendsAndSecurityIsByTextBelowTheCurrentOne)
{
    const QList<Row> rows{{u"a"_s, -50, false, 36, u"WPA2"_s},
                          {u"b"_s, -50, false, 6, u"None"_s},
                          {u"c"_s, -50, true, 165, u"WPA3"_s}};
    EXPECT_EQ(byOption(rows, SortOption::channel), u"c b a"_s);
    EXPECT_EQ(byOption(rows, SortOption::security), u"c b a"_s);
    EXPECT_EQ(byOption(rows, SortOption::ssid), u"c a b"_s);
}

TEST(Ordering, LongAndOddNamesHaveKeys)
{
    const Collation collation("en_US");
    EXPECT_LT(collation.sortKey(QString(32, u'a')), collation.sortKey(QString(32, u'b')));
    EXPECT_EQ(collation.sortKey(QString(QChar(0xd800))), collation.sortKey(QString(QChar(0xd800))));
}
