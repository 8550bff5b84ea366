#include "platform/linux/networkmanager/JoinSettings.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;
using enum CWSecurity;

CWNetwork networkWith(std::initializer_list<CWSecurity> codes)
{
    CWNetwork network;
    network.ssidData = "caf\xe9\0"_ba;
    for (const auto code : codes) {
        network.securityCodes.insert(static_cast<int>(code));
    }
    return network;
}

/// The security section in one line, or the error.
QString security(std::initializer_list<CWSecurity> codes, const QString& password)
{
    const auto settings = joinSettings(networkWith(codes), false, password);
    if (!settings.ok()) {
        return settings.error().description;
    }
    QStringList parts;
    const auto section = settings.value()[securitySection];
    for (auto setting = section.cbegin(); setting != section.cend(); ++setting) {
        parts.append(setting.key() + u'=' + setting.value().toString());
    }
    return parts.join(u' ');
}

TEST(JoinSettings, FollowTheKindOfTheNetwork)
{
    const auto password = u"correct horse"_s;
    EXPECT_EQ(security({none}, password), QString());
    EXPECT_EQ(security({owe}, {}), u"key-mgmt=owe"_s);
    EXPECT_EQ(security({wep}, u"abcde"_s), u"key-mgmt=none wep-key-type=1 wep-key0=abcde"_s);
    const auto personalKey = u"key-mgmt=wpa-psk psk=correct horse"_s;
    EXPECT_EQ(security({wpaPersonal, personal}, password), personalKey);
    EXPECT_EQ(security({wpa2Personal, wpa3Personal, wpa3Transition, personal}, password), personalKey);
    EXPECT_EQ(security({wpa2Personal, wpa2Enterprise, enterprise, personal}, password), personalKey);
    EXPECT_EQ(security({wpa3Personal, personal}, password), u"key-mgmt=sae psk=correct horse"_s);
    EXPECT_TRUE(security({wpa2Enterprise, enterprise}, {}).contains(u"network settings"_s));
}

TEST(JoinSettings, TakeOnlyPasswordsThatCanBeRight)
{
    const auto accepted = [](std::initializer_list<CWSecurity> codes, const QString& password) {
        return security(codes, password).startsWith(u"key-mgmt"_s);
    };
    for (const auto& [length, isRight] :
         {std::pair(7, false), {8, true}, {63, true}, {64, true}, {65, false}}) {
        EXPECT_EQ(accepted({wpa2Personal}, QString(length, u'a')), isRight) << length;
    }
    EXPECT_FALSE(accepted({wpa2Personal}, QString(64, u'g'))) << "not hexadecimal";
    EXPECT_TRUE(accepted({wpa2Personal}, QString(4, u'\u00e9'))) << "bytes count";
    EXPECT_TRUE(accepted({wpa3Personal}, u"x"_s));
    EXPECT_FALSE(accepted({wpa3Personal}, QString(8, QChar::Null)));
    for (const auto& [length, isRight] :
         {std::pair(4, false), {5, true}, {6, false}, {10, true}, {13, true}, {26, true}, {27, false}}) {
        EXPECT_EQ(accepted({wep}, QString(length, u'F')), isRight) << length;
    }
    EXPECT_FALSE(accepted({wep}, QString(10, u'x'))) << "not hexadecimal";
    EXPECT_FALSE(accepted({wep}, QString(5, u'\u00e9')));
}

TEST(JoinSettings, FitTheSecurityThatTheyAreFor)
{
    const auto fitting = [](std::initializer_list<CWSecurity> codes) {
        QStringList names;
        for (const auto& name : {u""_s, u"none"_s, u"ieee8021x"_s, u"wpa-psk"_s, u"sae"_s, u"wpa-eap"_s,
                                 u"wpa-eap-suite-b-192"_s, u"owe"_s}) {
            ConnectionSettings profile;
            if (!name.isEmpty()) {
                profile[securitySection] = {{u"key-mgmt"_s, name}};
            }
            if (fitsSecurity(profile, networkWith(codes))) {
                names.append(name);
            }
        }
        return names.join(u' ');
    };
    EXPECT_EQ(fitting({none}), u" owe"_s);
    EXPECT_EQ(fitting({owe}), u"owe"_s);
    EXPECT_EQ(fitting({wep}), u"none ieee8021x"_s);
    EXPECT_EQ(fitting({wpa2Personal, wpa3Personal, wpa3Transition, personal}), u"wpa-psk sae"_s);
    EXPECT_EQ(fitting({wpa3Personal, personal}), u"sae"_s);
    EXPECT_EQ(fitting({wpa2Personal, personal, wpa2Enterprise, enterprise}),
              u"wpa-psk wpa-eap wpa-eap-suite-b-192"_s);
}

TEST(JoinSettings, PassEveryByteOfTheName)
{
    auto network = networkWith({});
    const QVariantMap expected{{u"ssid"_s, "caf\xe9\0"_ba}, {u"mode"_s, u"infrastructure"_s}};
    EXPECT_EQ(joinSettings(network, false, {}).value()[wirelessSection], expected);
    network.ibss = true;
    EXPECT_EQ(joinSettings(network, true, {}).value()[wirelessSection][u"mode"_s], u"adhoc"_s);
}

} // namespace
} // namespace aerolith
