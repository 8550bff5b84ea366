#include "platform/simulated/ScenarioReader.h"

#include "platform/simulated/JsonRead.h"
#include "platform/simulated/RepeatedKey.h"
#include "platform/simulated/ScenarioNames.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace aerolith {

// Texts are taken as they are, so that a scenario can hold any SSID and any form of address. Numbers have
// ranges: wide ones, so that a scenario can hold values that no access point sends, which end where 32-bit
// arithmetic does.
namespace {

constexpr qint64 mostCodeInSet = 63;
constexpr double mostScanSeconds = 24.0 * 60 * 60;
constexpr qsizetype mebibyte = 1 << 20;

} // namespace

// Not in the anonymous namespace: JsonMembers has to find these.

static void read(const JsonPlace& place, Seconds& target)
{
    const double seconds = place.value().toDouble();
    if (!place.value().isDouble() || seconds < 0 || seconds > mostScanSeconds) {
        place.expected(u"a number from 0 to %1"_s.arg(mostScanSeconds));
    }
    target = Seconds(seconds);
}

/// An element of a CodeSet.
struct Code
{
    qint64 value = 0;
};

static void read(const JsonPlace& place, Code& target)
{
    read(place, IntegerIn{target.value, 0, mostCodeInSet});
}

static void read(const JsonPlace& place, CodeSet& target)
{
    QList<Code> codes;
    read(place, codes);
    for (const Code& code : codes) {
        target.insert(static_cast<int>(code.value));
    }
}

static void read(const JsonPlace& place, CLAuthorizationStatus& target)
{
    readChoice(place, target, authorizationNames);
}

static void read(const JsonPlace& place, AfterLast& target)
{
    readChoice(place, target, afterLastNames);
}

static void read(const JsonPlace& place, CWChannel& target)
{
    qint64 width = target.channelWidth;
    JsonMembers members(place);
    members.optional(u"number"_s, signedInteger(target.channelNumber));
    members.optional(u"width"_s, unsignedInteger(width));
    members.end();
    target.channelWidth = static_cast<int>(width);
}

static void read(const JsonPlace& place, CWNetwork& target)
{
    target.rssiValue = -100;
    target.beaconInterval = 100;
    JsonMembers members(place);
    members.optional(u"bssid"_s, target.bssid);
    members.optional(u"ssid"_s, target.ssid);
    members.optional(u"rssi"_s, signedInteger(target.rssiValue));
    members.optional(u"channel"_s, target.wlanChannel);
    members.optional(u"security"_s, target.securityCodes);
    members.optional(u"country"_s, target.countryCode);
    members.optional(u"beaconInterval"_s, unsignedInteger(target.beaconInterval));
    members.optional(u"ibss"_s, target.ibss);
    members.optional(u"phyModes"_s, target.phyModeCodes);
    members.end();
    target.ssidData = target.ssid.value_or(QString()).toUtf8();
}

static void read(const JsonPlace& place, ScenarioAssociation& target)
{
    JsonMembers members(place);
    members.optional(u"ssid"_s, target.ssid);
    members.optional(u"bssid"_s, target.bssid);
    members.end();
}

static void read(const JsonPlace& place, ScenarioCycle& target)
{
    JsonMembers members(place);
    if (members.has(u"error"_s)) {
        members.required(u"error"_s, target.error.emplace().description);
    } else {
        members.optional(u"joined"_s, target.joined);
        members.required(u"networks"_s, target.networks);
    }
    members.end();
}

static void read(const JsonPlace& place, ScenarioInterface& target)
{
    JsonMembers members(place);
    members.optional(u"name"_s, target.name);
    members.optional(u"hardwareAddress"_s, target.hardwareAddress);
    members.optional(u"transmitPower"_s, unsignedInteger(target.transmitPower));
    members.optional(u"channels"_s, target.channels);
    members.optional(u"powerOn"_s, target.powerOn);
    members.optional(u"powerRefused"_s, target.powerRefused);
    members.end();
}

/// The passwords: any key will do.
static void read(const JsonPlace& place, QHash<QString, QString>& target)
{
    if (!place.value().isObject()) {
        place.expected(u"an object"_s);
    }
    for (const QString& ssid : place.value().toObject().keys()) {
        const JsonPlace password = place.member(ssid);
        if (!ssid.isValidUtf16()) {
            password.complain(u"expected Unicode text as the key"_s);
        }
        read(password, target[ssid]);
    }
}

static void read(const JsonPlace& place, Scenario& target)
{
    JsonMembers members(place);
    members.optional(u"authorization"_s, target.authorization);
    members.optional(u"answer"_s, target.answer);
    members.optional(u"interface"_s, target.interface);
    members.optional(u"scanSeconds"_s, target.scanSeconds);
    members.required(u"cycles"_s, target.cycles);
    members.optional(u"afterLast"_s, target.afterLast);
    members.optional(u"passwords"_s, target.passwords);
    members.end();
    if (target.cycles.isEmpty()) {
        place.member(u"cycles"_s).expected(u"a list of at least one cycle"_s);
    }
}

/// An error at an offset in bytes, with the line and the column, both counted from 1, of the character there.
static Error errorAt(const QByteArray& text, qsizetype offset, const QString& complaint)
{
    const QByteArray before = text.left(offset);
    const QByteArray line = before.mid(before.lastIndexOf('\n') + 1);
    return Error{u"line %1, column %2: %3"_s.arg(before.count('\n') + 1)
                     .arg(QString::fromUtf8(line).toUcs4().size() + 1)
                     .arg(complaint)};
}

static Error tooLong()
{
    return Error{u"expected at most %1 MiB, found more"_s.arg(mostScenarioBytes / mebibyte)};
}

Result<Scenario> parseScenario(const QByteArray& json)
{
    if (json.size() > mostScenarioBytes) {
        return tooLong();
    }
    QJsonParseError syntaxError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &syntaxError);
    if (syntaxError.error != QJsonParseError::NoError) {
        // The offset is that of the byte behind the one that is wrong.
        return errorAt(json, std::max(syntaxError.offset - 1, 0),
                       u"expected JSON, "_s + syntaxError.errorString());
    }
    if (const std::optional<RepeatedKey> repeated = repeatedKey(json)) {
        return errorAt(json, repeated->offset,
                       u"expected each key once, found %1 again"_s.arg(quoted(repeated->key)));
    }
    Failure failure;
    Scenario scenario;
    read(
        JsonPlace(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()), failure),
        scenario);
    if (failure) {
        return *failure;
    }
    return scenario;
}

/// Devices and pipes included, which have no size.
static Result<QByteArray> contents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Error{file.errorString()};
    }
    QByteArray bytes;
    while (bytes.size() <= mostScenarioBytes) {
        const QByteArray chunk = file.read(mostScenarioBytes + 1 - bytes.size());
        if (chunk.isEmpty()) {
            break;
        }
        bytes += chunk;
    }
    if (file.error() != QFileDevice::NoError) {
        return Error{file.errorString()};
    }
    return bytes;
}

Result<Scenario> readScenario(const QString& path)
{
    const Result<QByteArray> json = contents(path);
    Result<Scenario> scenario = json.ok() ? parseScenario(json.value()) : json.error();
    if (!scenario.ok()) {
        return Error{path + u": "_s + scenario.error().description};
    }
    return scenario;
}

} // namespace aerolith
