#include "model/WiFiNetwork.h"

namespace aerolith {

using namespace Qt::StringLiterals;

std::pair<QString, QString> WiFiNetwork::securityInfo() const
{
    if (security.contains("Open"_L1) || security == "None"_L1) {
        return {u"Open"_s, u"lock.open"_s};
    }
    for (const QString& family : {u"WPA3"_s, u"WPA2"_s, u"WPA"_s, u"WEP"_s}) {
        if (security.contains(family)) {
            return {family, u"lock"_s};
        }
    }
    return {u"Secure"_s, u"lock"_s};
}

} // namespace aerolith
