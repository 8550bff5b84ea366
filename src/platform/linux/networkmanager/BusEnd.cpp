#include "platform/linux/networkmanager/BusEnd.h"

namespace aerolith {

using namespace Qt::StringLiterals;

BusEnd::BusEnd(const BusConnection& bus)
{
    // The bus library's own word, in the shape of a signal.
    auto connection = bus.connection();
    connection.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                       u"Disconnected"_s, this, SLOT(disconnected()));
}

} // namespace aerolith
