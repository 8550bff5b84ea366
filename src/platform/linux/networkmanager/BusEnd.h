#pragma once

#include "platform/linux/networkmanager/BusConnection.h"

#include <QObject>

namespace aerolith {

/// Tells when the bus of a connection has gone: the connection never comes back by itself. Belongs to the
/// connection's thread; needs its event loop.
class BusEnd : public QObject
{
    Q_OBJECT

public:
    explicit BusEnd(const BusConnection& bus);

Q_SIGNALS:
    void reached();

private Q_SLOTS:

    void disconnected() { Q_EMIT reached(); }
};

} // namespace aerolith
