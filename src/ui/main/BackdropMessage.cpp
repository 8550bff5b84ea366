#include "ui/main/BackdropMessage.h"

#include <QCoreApplication>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct BackdropMessageTexts
{
    Q_DECLARE_TR_FUNCTIONS(BackdropMessage)
};

} // namespace

BackdropMessage backdropMessage(bool locationAccessDenied, bool listIsEmpty)
{
    if (locationAccessDenied) {
        return {u"location.slash"_s,
                BackdropMessageTexts::tr("Location access is required\nto scan for networks.\n\n"
                                         "Please enable it\nin System Settings.")};
    }
    if (!listIsEmpty) {
        return {u"chevron.left"_s, BackdropMessageTexts::tr("Select a network to view details")};
    }
    return {u"network"_s, BackdropMessageTexts::tr("Scanning for networks.\nPlease wait...")};
}

} // namespace aerolith
