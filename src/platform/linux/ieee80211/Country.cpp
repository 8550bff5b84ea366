#include "platform/linux/ieee80211/Country.h"

#include "platform/linux/ieee80211/Elements.h"

#include <algorithm>

namespace aerolith::ieee80211 {

namespace {

bool isLetter(std::uint8_t byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

} // namespace

std::optional<QString> countryLetters(Bytes elements)
{
    // Two letters and the environment.
    const auto country = findElement(elements, ElementId::country, 3);
    if (!country) {
        return {};
    }
    const Bytes letters = country->first(2);
    if (!std::all_of(letters.begin(), letters.end(), isLetter)) {
        return {};
    }
    return QString::fromLatin1(byteArray(letters));
}

} // namespace aerolith::ieee80211
