#include "platform/linux/networkmanager/DBusTypes.h"

#include <QDBusMetaType>

QDBusArgument& operator<<(QDBusArgument& argument, const DeviceStateReason& value)
{
    argument.beginStructure();
    argument << value.state << value.reason;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DeviceStateReason& value)
{
    argument.beginStructure();
    argument >> value.state >> value.reason;
    argument.endStructure();
    return argument;
}

void registerDBusTypes()
{
    [[maybe_unused]] static const bool registered = [] {
        qDBusRegisterMetaType<PermissionMap>();
        qDBusRegisterMetaType<ConnectionSettings>();
        qDBusRegisterMetaType<DeviceStateReason>();
        qDBusRegisterMetaType<QList<QByteArray>>();
        return true;
    }();
}
