#pragma once

#include <QtGlobal>

namespace aerolith {

/// The platform's channel-width codes. A number of MHz beyond these is `unknown`.
enum class CWChannelWidth
{
    unknown = 0,
    mhz20 = 1,
    mhz40 = 2,
    mhz80 = 3,
    mhz160 = 4
};

/// One channel: of a scan result, or one that the interface supports.
struct CWChannel
{
    /// IEEE 802.11 channel number of the primary 20 MHz channel.
    qint64 channelNumber = 0;
    /// A CWChannelWidth, kept as the bare code: a source may answer with codes that have no name here.
    int channelWidth = 0;

    friend bool operator==(const CWChannel&, const CWChannel&) = default;
};

} // namespace aerolith
