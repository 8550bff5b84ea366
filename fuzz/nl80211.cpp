#include "Require.h"
#include "platform/linux/nl80211/BssEntry.h"
#include "platform/linux/nl80211/InterfaceInfo.h"
#include "platform/linux/nl80211/ScanEvent.h"
#include "platform/linux/nl80211/Sightings.h"
#include "platform/linux/nl80211/SupportedChannels.h"

using namespace aerolith;

namespace {

template <typename Decoded>
bool decodes(const Decoded& decoded)
{
    require(decoded.ok() || !decoded.error().description.isEmpty());
    return decoded.ok();
}

} // namespace

/// The input is netlink messages back to back, as the kernel sends them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Bytes messages(data, size);
    const auto entries = nl80211::decodeBssEntries(messages);
    if (decodes(entries)) {
        const nl80211::BootTime now = std::chrono::hours(1);
        const auto all = nl80211::sightings(entries.value(), nl80211::BootTime::min(), now, {});
        require(all.size() <= entries.value().size());
        const auto recent = nl80211::sightings(entries.value(), now - std::chrono::seconds(10), now, {});
        require(recent.size() <= all.size());
        const nl80211::BssEntry* joined = nl80211::joinedEntry(entries.value());
        require(!joined || joined->status.has_value());
    }
    decodes(nl80211::decodeInterfaces(messages));
    decodes(nl80211::decodeSupportedChannels(messages));
    decodes(nl80211::decodeScanEvent(messages));
    return 0;
}
