#include "platform/linux/ieee80211/Security.h"

#include "platform/linux/ieee80211/Capability.h"
#include "platform/linux/ieee80211/Elements.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace aerolith::ieee80211 {

namespace {

/// Kinds of key management, as bits.
enum Method : unsigned
{
    psk = 1,
    sae = 2,
    enterprise = 4,
    enterprise3 = 8,
    owe = 16
};

constexpr std::size_t suiteSize = 4;
constexpr std::array<std::uint8_t, 3> rsnOrganisation{0x00, 0x0f, 0xac};
constexpr std::array<std::uint8_t, 3> wpaOrganisation{0x00, 0x50, 0xf2};
constexpr VendorType wpaElement{0x00, 0x50, 0xf2, 1};
constexpr std::uint8_t suite8021X = 1;

/// What the RSN and the WPA element have in common.
struct KeyManagement
{
    Bytes suites;
    bool frameProtectionRequired = false;
    /// The element ends before the suites, which means the default, 802.1X.
    bool leftOut = false;
};

/// Takes the fields of an element off its body, one after the other.
class FieldReader
{
public:
    explicit FieldReader(Bytes body) : m_rest(body) {}

    [[nodiscard]] bool atEnd() const { return m_rest.empty(); }

    /// Takes up to `size` bytes.
    Bytes take(std::size_t size)
    {
        const Bytes taken = m_rest.first(std::min(size, m_rest.size()));
        m_rest = m_rest.subspan(taken.size());
        return taken;
    }

    std::optional<std::uint16_t> takeNumber()
    {
        const Bytes number = take(2);
        return number.size() == 2 ? std::optional(littleEndian16(number, 0)) : std::nullopt;
    }

private:
    Bytes m_rest;
};

KeyManagement keyManagement(Bytes body)
{
    constexpr std::uint16_t requiresFrameProtection = 1 << 6;
    FieldReader fields(body);
    if (fields.takeNumber() != 1) { // version
        return {};
    }
    // An element may end before any field, and is wrong where it ends within one.
    if (!fields.atEnd() && fields.take(suiteSize).size() != suiteSize) { // group cipher
        return {};
    }
    if (!fields.atEnd()) { // pairwise ciphers
        const auto count = fields.takeNumber();
        if (!count || fields.take(suiteSize * *count).size() != suiteSize * *count) {
            return {};
        }
    }
    KeyManagement found;
    found.leftOut = fields.atEnd();
    found.suites = fields.take(suiteSize * fields.takeNumber().value_or(0));
    found.frameProtectionRequired = (fields.takeNumber().value_or(0) & requiresFrameProtection) != 0;
    return found;
}

/// The methods by suite number within the element's own organisation; suites of others are passed over.
template <typename MethodOf>
unsigned methods(const KeyManagement& found, Bytes organisation, MethodOf methodOf)
{
    unsigned all = found.leftOut ? methodOf(suite8021X) : 0U;
    for (Bytes rest = found.suites; rest.size() >= suiteSize; rest = rest.subspan(suiteSize)) {
        if (std::equal(organisation.begin(), organisation.end(), rest.begin())) {
            all |= methodOf(rest[3]);
        }
    }
    return all;
}

unsigned rsnMethods(Bytes element)
{
    const KeyManagement found = keyManagement(element);
    return methods(found, rsnOrganisation, [&found](std::uint8_t suite) -> unsigned {
        switch (suite) {
        case 1: // 802.1X
        case 3: // 802.1X with fast transition
            return enterprise;
        case 5:  // 802.1X with SHA-256
        case 11: // Suite B
        case 14: // FILS and its fast transition
        case 15:
        case 16:
        case 17:
            // WPA3 is the same 802.1X with protected management frames made a condition.
            return found.frameProtectionRequired ? enterprise3 : enterprise;
        case 12: // Suite B with 192 bits
        case 13: // 802.1X with fast transition and SHA-384
        case 22:
        case 23: // 802.1X with SHA-384
            return enterprise3;
        case 2:  // PSK
        case 4:  // with fast transition
        case 6:  // with SHA-256
        case 19: // with fast transition and SHA-384
        case 20: // with SHA-384
            return psk;
        case 8:  // SAE
        case 9:  // with fast transition
        case 24: // with a hash of the group's length
        case 25:
            return sae;
        case 18:
            return owe;
        default:
            return 0;
        }
    });
}

unsigned wpaMethods(Bytes element)
{
    return methods(keyManagement(element), wpaOrganisation, [](std::uint8_t suite) -> unsigned {
        switch (suite) {
        case 1:
            return enterprise;
        case 2:
            return psk;
        default:
            return 0;
        }
    });
}

} // namespace

CodeSet securityCodes(Bytes elements, std::uint16_t capability)
{
    CodeSet codes;
    const auto rsnElement = findElement(elements, ElementId::rsn);
    const auto wpa1Element = findElement(elements, wpaElement);
    if (!rsnElement && !wpa1Element) {
        const bool privacy = (capability & capabilityPrivacy) != 0;
        codes.insert(static_cast<int>(privacy ? CWSecurity::wep : CWSecurity::none));
        return codes;
    }
    const unsigned rsn = rsnElement ? rsnMethods(*rsnElement) : 0U;
    const unsigned wpa = wpa1Element ? wpaMethods(*wpa1Element) : 0U;
    const std::array<std::pair<unsigned, CWSecurity>, 12> answers{{
        {wpa & psk, CWSecurity::wpaPersonal},
        {wpa & rsn & psk, CWSecurity::wpaPersonalMixed},
        {rsn & psk, CWSecurity::wpa2Personal},
        {(rsn | wpa) & (psk | sae), CWSecurity::personal},
        {rsn & sae, CWSecurity::wpa3Personal},
        {(rsn & psk) != 0 ? rsn & sae : 0U, CWSecurity::wpa3Transition},
        {wpa & enterprise, CWSecurity::wpaEnterprise},
        {wpa & rsn & enterprise, CWSecurity::wpaEnterpriseMixed},
        {rsn & enterprise, CWSecurity::wpa2Enterprise},
        {(rsn | wpa) & (enterprise | enterprise3), CWSecurity::enterprise},
        {rsn & enterprise3, CWSecurity::wpa3Enterprise},
        {rsn & owe, CWSecurity::owe},
    }};
    for (const auto& [yes, code] : answers) {
        if (yes != 0) {
            codes.insert(static_cast<int>(code));
        }
    }
    return codes;
}

} // namespace aerolith::ieee80211
