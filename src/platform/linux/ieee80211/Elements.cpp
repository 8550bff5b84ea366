#include "platform/linux/ieee80211/Elements.h"

#include <algorithm>

namespace aerolith::ieee80211 {

namespace {

constexpr std::size_t headerSize = 2;

struct Element
{
    ElementId id;
    Bytes body;
};

/// Takes the first element off `rest`. Absent at the end, or where fewer bytes follow than the element
/// claims.
std::optional<Element> takeElement(Bytes& rest)
{
    if (rest.size() < headerSize || rest.size() - headerSize < rest[1]) {
        return {};
    }
    const Element element{ElementId{rest[0]}, rest.subspan(headerSize, rest[1])};
    rest = rest.subspan(headerSize + rest[1]);
    return element;
}

/// Body after `prefix` of the first element that starts with it and has `minimum` more bytes.
std::optional<Bytes> findWithPrefix(Bytes elements, ElementId id, Bytes prefix, std::size_t minimum)
{
    while (const auto element = takeElement(elements)) {
        if (element->id != id || element->body.size() < prefix.size() + minimum) {
            continue;
        }
        if (std::equal(prefix.begin(), prefix.end(), element->body.begin())) {
            return element->body.subspan(prefix.size());
        }
    }
    return {};
}

} // namespace

std::optional<Bytes> findElement(Bytes elements, ElementId id, std::size_t minimum)
{
    return findWithPrefix(elements, id, {}, minimum);
}

std::optional<Bytes> findElement(Bytes elements, ExtensionId id, std::size_t minimum)
{
    const std::array prefix{static_cast<std::uint8_t>(id)};
    return findWithPrefix(elements, ElementId::extension, prefix, minimum);
}

std::optional<Bytes> findElement(Bytes elements, const VendorType& type)
{
    return findWithPrefix(elements, ElementId::vendorSpecific, type, 0);
}

} // namespace aerolith::ieee80211
