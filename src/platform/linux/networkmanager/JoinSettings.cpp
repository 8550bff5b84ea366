#include "platform/linux/networkmanager/JoinSettings.h"

#include "platform/JoinTexts.h"

#include <algorithm>
#include <array>

namespace aerolith {

using namespace Qt::StringLiterals;

const QString wirelessSection = u"802-11-wireless"_s;
const QString securitySection = u"802-11-wireless-security"_s;

namespace {

const auto management = u"key-mgmt"_s;
const auto presharedKey = u"psk"_s;
const auto wepKey = u"wep-key0"_s;

constexpr uint wepKeyNotPassphrase = 1;

enum class Kind
{
    open,
    wep,
    personal,
    wpa3Personal,
    enhancedOpen,
    enterprise,
};

/// What a profile with the key management can join.
struct Fit
{
    QLatin1StringView management;
    CWSecurity security;
};

constexpr std::array fits = {
    Fit{"none"_L1, CWSecurity::wep},
    Fit{"ieee8021x"_L1, CWSecurity::wep},
    Fit{"ieee8021x"_L1, CWSecurity::dynamicWEP},
    Fit{"wpa-psk"_L1, CWSecurity::wpaPersonal},
    Fit{"wpa-psk"_L1, CWSecurity::wpa2Personal},
    Fit{"sae"_L1, CWSecurity::wpa3Personal},
    Fit{"wpa-eap"_L1, CWSecurity::enterprise},
    Fit{"wpa-eap-suite-b-192"_L1, CWSecurity::enterprise},
    Fit{"owe"_L1, CWSecurity::owe},
    // Beside an open access point there may be one of the same network that encrypts.
    Fit{"owe"_L1, CWSecurity::none},
};

Kind kindOf(const CWNetwork& network)
{
    const auto supports = [&](CWSecurity code) { return network.supportsSecurity(code); };
    if (supports(CWSecurity::wpaPersonal) || supports(CWSecurity::wpa2Personal)) {
        return Kind::personal;
    }
    if (supports(CWSecurity::wpa3Personal)) {
        return Kind::wpa3Personal;
    }
    if (supports(CWSecurity::enterprise) || supports(CWSecurity::dynamicWEP)) {
        return Kind::enterprise;
    }
    if (supports(CWSecurity::wep)) {
        return Kind::wep;
    }
    return supports(CWSecurity::owe) ? Kind::enhancedOpen : Kind::open;
}

bool isHexadecimal(const QString& text)
{
    return std::ranges::all_of(text, [](QChar character) {
        return (character >= u'0' && character <= u'9') || (character >= u'a' && character <= u'f') ||
               (character >= u'A' && character <= u'F');
    });
}

bool isPresharedKey(const QString& password)
{
    const auto bytes = password.toUtf8().size();
    return (bytes >= 8 && bytes <= 63) || (bytes == 64 && isHexadecimal(password));
}

bool isWepKey(const QString& password)
{
    const auto length = password.size();
    const auto isAscii = std::ranges::all_of(password, [](QChar c) { return c.unicode() < 0x80; });
    return (isAscii && (length == 5 || length == 13)) ||
           (isHexadecimal(password) && (length == 10 || length == 26));
}

Failure faultOf(Kind kind, const QString& password)
{
    if (kind == Kind::open || kind == Kind::enhancedOpen) {
        return {};
    }
    if (kind == Kind::enterprise) {
        return Error{JoinTexts::tr(
            "The network asks for a login of its own kind, which has to be set up in the system's "
            "network settings first")};
    }
    if (password.isEmpty()) {
        return Error{JoinTexts::tr("The network needs a password")};
    }
    // The bus carries no such character.
    if (password.contains(QChar::Null)) {
        return Error{
            JoinTexts::tr("The password is not correct: it holds a character that cannot be part of one")};
    }
    if (kind == Kind::wep && !isWepKey(password)) {
        return Error{
            JoinTexts::tr("The password is not correct: a WEP key has 5 or 13 characters, or 10 or 26 "
                          "hexadecimal digits")};
    }
    if (kind == Kind::personal && !isPresharedKey(password)) {
        return Error{JoinTexts::tr(
            "The password is not correct: it has 8 to 63 characters, or 64 hexadecimal digits")};
    }
    return {};
}

QVariantMap securityOf(Kind kind, const QString& password)
{
    switch (kind) {
    case Kind::wep:
        return {{management, u"none"_s}, {wepKey, password}, {u"wep-key-type"_s, wepKeyNotPassphrase}};
    case Kind::personal:
        return {{management, u"wpa-psk"_s}, {presharedKey, password}};
    case Kind::wpa3Personal:
        return {{management, u"sae"_s}, {presharedKey, password}};
    case Kind::enhancedOpen:
        return {{management, u"owe"_s}};
    case Kind::open:
    case Kind::enterprise:
        break;
    }
    return {};
}

} // namespace

Result<ConnectionSettings> joinSettings(const CWNetwork& network, bool hidden, const QString& password)
{
    const auto kind = kindOf(network);
    if (auto fault = faultOf(kind, password)) {
        return *fault;
    }
    ConnectionSettings settings;
    settings[u"connection"_s] = {{u"type"_s, wirelessSection}};
    settings[wirelessSection] = {{u"ssid"_s, network.ssidData},
                                 {u"mode"_s, network.ibss ? u"adhoc"_s : u"infrastructure"_s}};
    if (hidden) {
        settings[wirelessSection].insert(u"hidden"_s, true);
    }
    if (const auto security = securityOf(kind, password); !security.isEmpty()) {
        settings[securitySection] = security;
    }
    return settings;
}

bool fitsSecurity(const ConnectionSettings& profile, const CWNetwork& network)
{
    const auto managed = profile.value(securitySection).value(management).toString();
    if (managed.isEmpty()) {
        return kindOf(network) == Kind::open;
    }
    return std::ranges::any_of(fits, [&](const Fit& fit) {
        return fit.management == managed && network.supportsSecurity(fit.security);
    });
}

QString passwordSetting(const ConnectionSettings& settings)
{
    const auto security = settings.value(securitySection);
    for (const auto& name : {presharedKey, wepKey}) {
        if (security.contains(name)) {
            return name;
        }
    }
    return {};
}

} // namespace aerolith
