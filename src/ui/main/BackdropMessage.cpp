#include "ui/main/BackdropMessage.h"

namespace aerolith {

using namespace Qt::StringLiterals;

BackdropMessage backdropMessage(bool locationAccessDenied, bool listIsEmpty)
{
    if (locationAccessDenied) {
        return {
            u"location.slash"_s,
            u"Location access is required\nto scan for networks.\n\nPlease enable it\nin System Settings."_s};
    }
    if (!listIsEmpty) {
        return {u"chevron.left"_s, u"Select a network to view details"_s};
    }
    return {u"network"_s, u"Scanning for networks.\nPlease wait..."_s};
}

} // namespace aerolith
