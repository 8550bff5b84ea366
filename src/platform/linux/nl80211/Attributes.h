#pragma once

#include "platform/Result.h"
#include "platform/linux/ieee80211/Bytes.h"

#include <QLatin1StringView>

#include <cstring>
#include <optional>
#include <type_traits>

namespace aerolith::nl80211 {

/// One netlink attribute: a typed piece of a message.
struct Attribute
{
    int type;
    Bytes payload;
    /// What it is a piece of, for descriptions.
    QLatin1StringView owner;
};

/// What follows the first `size` bytes and the padding behind them: netlink lets everything begin at a
/// multiple of four bytes. The padding may be missing at the end.
[[nodiscard]] Bytes afterPadding(Bytes bytes, std::size_t size);

/// Takes the first attribute off `rest`; `taken` is how many bytes of the owner lie before `rest`. An error
/// where the attribute is cut short.
[[nodiscard]] Result<Attribute> takeAttribute(Bytes& rest, std::size_t taken, QLatin1StringView owner);

/// The attribute has `expected` bytes, else an error that names it.
[[nodiscard]] Failure checkSize(const Attribute& attribute, std::size_t expected);

/// Shows each of the attributes, of which `owner` is made, to `visit`, a function from `const Attribute&` to
/// Failure. Stops at the first error, its own or that of `visit`, and returns it.
template <typename Visit>
[[nodiscard]] Failure visitAttributes(Bytes attributes, QLatin1StringView owner, Visit visit)
{
    for (Bytes rest = attributes; !rest.empty();) {
        const Result<Attribute> attribute = takeAttribute(rest, attributes.size() - rest.size(), owner);
        if (!attribute.ok()) {
            return attribute.error();
        }
        if (Failure failure = visit(attribute.value())) {
            return failure;
        }
    }
    return {};
}

/// Puts an attribute of a fixed size into `value`: a number, in the byte order of the machine, or an array of
/// bytes.
template <typename Value>
[[nodiscard]] Failure readValue(const Attribute& attribute, Value& value)
{
    static_assert(std::is_trivially_copyable_v<Value>);
    if (Failure failure = checkSize(attribute, sizeof value)) {
        return failure;
    }
    std::memcpy(&value, attribute.payload.data(), sizeof value);
    return {};
}

template <typename Value>
[[nodiscard]] Failure readValue(const Attribute& attribute, std::optional<Value>& value)
{
    return readValue(attribute, value.emplace());
}

} // namespace aerolith::nl80211
