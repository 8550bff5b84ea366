#include "ui/common/NetworkTexts.h"

#include <QCoreApplication>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(NetworkTexts)
};

} // namespace

QString securityText(const WiFiNetwork& network)
{
    const QString label = network.securityInfo().first;
    // The others are names of standards.
    if (label == "Open"_L1) {
        //: The security of a network that anybody may join.
        return Texts::tr("Open");
    }
    //: The security of a network by some means that has no short name.
    return label == "Secure"_L1 ? Texts::tr("Secure") : label;
}

QString bandText(const WiFiNetwork& network)
{
    //: The band of a network.
    return network.channelBand == "Unknown"_L1 ? Texts::tr("Unknown") : network.channelBand;
}

QString listSeparator()
{
    //: Between the parts of a text that is read out, as in "Café, WPA2, channel 6".
    return Texts::tr(", ");
}

} // namespace aerolith
