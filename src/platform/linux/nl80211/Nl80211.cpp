#include "platform/linux/nl80211/Nl80211.h"

#include "platform/linux/nl80211/Socket.h"
#include "platform/linux/nl80211/SupportedChannels.h"

#include <linux/nl80211.h>
#include <netlink/attr.h>

#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {

namespace {

/// Why the kernel refused, by errno.
QString reason(int errorNumber)
{
    switch (errorNumber) {
    case EPERM:
    case EACCES:
        return u"the system lets only an administrator do that"_s;
    case ENODEV:
        return u"the Wi-Fi interface is gone"_s;
    case ENETDOWN:
        return u"the Wi-Fi interface is down"_s;
    case ERFKILL:
        return u"the Wi-Fi radio is switched off"_s;
    default:
        return QString::fromLocal8Bit(std::generic_category().message(errorNumber));
    }
}

Error refusal(QLatin1StringView what, int errorNumber)
{
    return {u"%1: %2"_s.arg(what, reason(errorNumber))};
}

/// Sends a dump request that `addAttributes` completes and decodes what comes back.
template <typename Value, typename AddAttributes>
Result<Value> dump(int command, QLatin1StringView what, AddAttributes addAttributes,
                   Result<Value> (*decode)(Bytes))
{
    // While a scan runs, the list may change during every one of several dumps. Each entry is sound even so;
    // at worst one is missing or there twice, and the last attempt has to do.
    constexpr int attempts = 5;
    const auto socket = Socket::open();
    if (!socket.ok()) {
        return socket.error();
    }
    for (int attempt = 1;; ++attempt) {
        OwnedMessage request = socket.value()->newRequest(command, NLM_F_DUMP);
        addAttributes(request.get());
        const auto reply = socket.value()->exchange(std::move(request));
        if (!reply.ok()) {
            return reply.error();
        }
        if (reply.value().errorNumber != 0) {
            return refusal(what, reply.value().errorNumber);
        }
        if (!reply.value().interrupted || attempt == attempts) {
            return decode(bytesOf(reply.value().messages));
        }
    }
}

class KernelScanEvents : public ScanEvents
{
public:
    KernelScanEvents(std::shared_ptr<Socket> socket, std::optional<std::uint32_t> interfaceIndex)
        : m_socket(std::move(socket)), m_interfaceIndex(interfaceIndex)
    {
    }

    Result<std::optional<ScanEvent>> wait(Deadline deadline) override
    {
        for (;;) {
            while (!m_messages.isEmpty()) {
                const auto event = decodeScanEvent(bytesOf(m_messages.takeFirst()));
                if (!event.ok()) {
                    return event.error();
                }
                if (event.value() && isOfInterest(*event.value())) {
                    return event.value();
                }
            }
            const auto received = m_socket->receive(deadline);
            if (!received.ok()) {
                return received.error();
            }
            if (received.value().isEmpty()) {
                return std::optional<ScanEvent>();
            }
            m_messages = received.value();
        }
    }

    std::optional<int> descriptor() const override { return m_socket->descriptor(); }

private:
    bool isOfInterest(const ScanEvent& event) const
    {
        return !m_interfaceIndex || event.interfaceIndex == *m_interfaceIndex;
    }

    std::shared_ptr<Socket> m_socket;
    std::optional<std::uint32_t> m_interfaceIndex;
    QList<QByteArray> m_messages;
};

class KernelNl80211 : public Nl80211
{
public:
    Result<QList<InterfaceInfo>> interfaces() override
    {
        return dump<QList<InterfaceInfo>>(
            NL80211_CMD_GET_INTERFACE, "The Wi-Fi interfaces cannot be listed"_L1, [](nl_msg*) {},
            &decodeInterfaces);
    }

    Result<QList<CWChannel>> supportedChannels(std::uint32_t radio) override
    {
        const auto addAttributes = [radio](nl_msg* request) {
            // Without this, a radio with many channels does not fit the one message of the answer.
            nla_put_flag(request, NL80211_ATTR_SPLIT_WIPHY_DUMP);
            nla_put_u32(request, NL80211_ATTR_WIPHY, radio);
        };
        return dump<QList<CWChannel>>(NL80211_CMD_GET_WIPHY, "The radio's channels cannot be listed"_L1,
                                      addAttributes, &decodeSupportedChannels);
    }

    Result<QList<BssEntry>> bssEntries(std::uint32_t interfaceIndex) override
    {
        const auto addAttributes = [interfaceIndex](nl_msg* request) {
            nla_put_u32(request, NL80211_ATTR_IFINDEX, interfaceIndex);
        };
        return dump<QList<BssEntry>>(NL80211_CMD_GET_SCAN, "The access points heard cannot be listed"_L1,
                                     addAttributes, &decodeBssEntries);
    }

    Failure triggerScan(std::uint32_t interfaceIndex, const std::optional<QByteArray>& ssid) override
    {
        constexpr qsizetype longestSsid = 32;
        const QByteArray name = ssid.value_or(QByteArray());
        if (name.size() > longestSsid) {
            return Error{u"A network name has at most 32 bytes"_s};
        }
        const auto socket = Socket::open();
        if (!socket.ok()) {
            return socket.error();
        }
        OwnedMessage request = socket.value()->newRequest(NL80211_CMD_TRIGGER_SCAN, 0);
        nla_put_u32(request.get(), NL80211_ATTR_IFINDEX, interfaceIndex);
        // One name of no bytes asks every access point to answer; without any name the radio would only
        // listen.
        nlattr* names = nla_nest_start(request.get(), NL80211_ATTR_SCAN_SSIDS);
        nla_put(request.get(), 1, static_cast<int>(name.size()), name.constData());
        nla_nest_end(request.get(), names);
        const auto reply = socket.value()->exchange(std::move(request));
        if (!reply.ok()) {
            return reply.error();
        }
        switch (reply.value().errorNumber) {
        case 0:
        case EBUSY:
            return {};
        default:
            return refusal("A scan cannot be started"_L1, reply.value().errorNumber);
        }
    }

    Result<std::shared_ptr<ScanEvents>> scanEvents(std::optional<std::uint32_t> interfaceIndex) override
    {
        const auto socket = Socket::open();
        if (!socket.ok()) {
            return socket.error();
        }
        if (Failure failure = socket.value()->subscribe(NL80211_MULTICAST_GROUP_SCAN)) {
            return *failure;
        }
        return std::shared_ptr<ScanEvents>(
            std::make_shared<KernelScanEvents>(socket.value(), interfaceIndex));
    }
};

} // namespace

std::unique_ptr<Nl80211> makeNl80211()
{
    return std::make_unique<KernelNl80211>();
}

} // namespace aerolith::nl80211
