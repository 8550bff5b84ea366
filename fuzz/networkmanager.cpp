#include "platform/linux/networkmanager/NetworkManager.h"

#include "Require.h"
#include "platform/linux/networkmanager/Activation.h"
#include "platform/linux/networkmanager/JoinFailure.h"
#include "platform/linux/networkmanager/JoinSettings.h"
#include "platform/linux/networkmanager/StoredProfile.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>
#include <array>
#include <fuzzer/FuzzedDataProvider.h>

using namespace aerolith;

namespace {

using Input = FuzzedDataProvider;

QByteArray bytes(Input& input)
{
    return QByteArray::fromStdString(input.ConsumeRandomLengthString(80));
}

QString text(Input& input)
{
    return QString::fromUtf8(bytes(input));
}

/// One of the names that are looked for, or any.
QString name(Input& input)
{
    static const std::array known = {QStringLiteral("connection"),
                                     wirelessSection,
                                     securitySection,
                                     QStringLiteral("ssid"),
                                     QStringLiteral("timestamp"),
                                     QStringLiteral("psk"),
                                     QStringLiteral("wep-key0")};
    const auto index = input.ConsumeIntegralInRange<std::size_t>(0, known.size());
    return index < known.size() ? known.at(index) : text(input);
}

QVariantMap values(Input& input, int depth);

/// A value of any type that the bus may deliver in a variant; what the bus leaves for later is a
/// QDBusArgument.
QVariant value(Input& input, int depth)
{
    switch (input.ConsumeIntegralInRange(0, depth > 0 ? 11 : 9)) {
    case 0:
        return text(input);
    case 1:
        return bytes(input);
    case 2:
        return input.ConsumeBool();
    case 3:
        return input.ConsumeIntegral<quint32>();
    case 4:
        return input.ConsumeIntegral<qint64>();
    case 5:
        return input.ConsumeIntegral<quint64>();
    case 6:
        return QStringList{text(input), text(input)};
    case 7:
        return QVariant::fromValue(QDBusObjectPath(text(input)));
    case 8:
        return QVariant::fromValue(QDBusArgument());
    case 9:
        return {};
    case 10:
        return QVariant::fromValue(QDBusVariant(value(input, depth - 1)));
    default:
        return values(input, depth - 1);
    }
}

QVariantMap values(Input& input, int depth)
{
    QVariantMap map;
    for (int left = input.ConsumeIntegralInRange(0, 5); left > 0; --left) {
        map[name(input)] = value(input, depth);
    }
    return map;
}

ConnectionSettings settings(Input& input)
{
    ConnectionSettings sections;
    for (int left = input.ConsumeIntegralInRange(0, 4); left > 0; --left) {
        sections[name(input)] = values(input, 2);
    }
    return sections;
}

CWNetwork network(Input& input)
{
    CWNetwork network;
    network.ssidData = bytes(input);
    network.ibss = input.ConsumeBool();
    for (int left = input.ConsumeIntegralInRange(0, 3); left > 0; --left) {
        network.securityCodes.insert(input.ConsumeIntegralInRange(-1, 20));
    }
    return network;
}

qulonglong use(const StoredProfile& profile)
{
    return profile.settings[QStringLiteral("connection")].value(QStringLiteral("timestamp")).toULongLong();
}

void requireNewest(const QList<StoredProfile>& profiles, const CWNetwork& network)
{
    const auto newest = newestProfile(profiles, network);
    const auto isFor = [&](const StoredProfile& profile) {
        const auto name = profile.settings[wirelessSection].value(QStringLiteral("ssid")).toByteArray();
        return name == network.ssidData && fitsSecurity(profile.settings, network);
    };
    require(newest.has_value() == std::any_of(profiles.begin(), profiles.end(), isFor));
    require(!newest || (isFor(*newest) && std::ranges::all_of(profiles, [&](const StoredProfile& profile) {
                            return !isFor(profile) || use(profile) <= use(*newest);
                        })));
}

/// A new password changes itself and nothing else.
void requireOnlyPassword(const StoredProfile& profile, const ConnectionSettings& joined,
                         const QString& password)
{
    const QString setting = passwordSetting(joined);
    if (setting.isEmpty()) {
        return;
    }
    ConnectionSettings changed = withPassword(profile, joined);
    require(changed[securitySection].value(setting) == password);
    ConnectionSettings before = profile.settings;
    changed[securitySection].remove(setting);
    before[securitySection].remove(setting);
    require(changed.keys() == before.keys());
    for (const QString& section : before.keys()) {
        require(changed[section].keys() == before[section].keys());
    }
}

} // namespace

/// The input is cut up into what NetworkManager answers: numbers, and variants of any type and depth.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const auto lastScan = lastScanTime(input.ConsumeIntegral<qint64>());
    require(!lastScan || std::chrono::nanoseconds(*lastScan).count() >= 0);

    const CWNetwork joining = network(input);
    const ActivationEnd end{.outcome = static_cast<ActivationOutcome>(input.ConsumeIntegralInRange(0, 4)),
                            .refusal = {RemoteFailure::other, QStringLiteral("refused")},
                            .state = static_cast<DeviceState>(input.ConsumeIntegral<quint32>()),
                            .reason = input.ConsumeIntegral<quint32>()};
    require(!joinFailure(end, joining, input.ConsumeBool()).description.isEmpty());

    const QVariantList answer = {value(input, 2), value(input, 2)};
    const auto objects = activationObjects(answer);
    require(!objects || !objects->activePath.isEmpty());

    const QString password = text(input);
    const auto joined = joinSettings(joining, input.ConsumeBool(), password);
    require(joined.ok() || !joined.error().description.isEmpty());
    QList<StoredProfile> profiles;
    while (input.remaining_bytes() > 0 && profiles.size() < 3) {
        profiles.append({QStringLiteral("/profile"), settings(input)});
    }
    requireNewest(profiles, joining);
    for (const StoredProfile& profile : profiles) {
        if (joined.ok()) {
            requireOnlyPassword(profile, joined.value(), password);
        }
    }
    return 0;
}
