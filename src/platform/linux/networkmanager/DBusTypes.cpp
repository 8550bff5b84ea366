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

namespace {

/// Qt works out a type's signature where it is first needed, and two threads that do so at once read garbage.
template <typename Type>
void registerWithSignature()
{
    QDBusMetaType::typeToSignature(qDBusRegisterMetaType<Type>());
}

} // namespace

void registerDBusTypes()
{
    [[maybe_unused]] static const bool registered = [] {
        registerWithSignature<PermissionMap>();
        registerWithSignature<ConnectionSettings>();
        registerWithSignature<ManagedObjects>();
        registerWithSignature<DeviceStateReason>();
        registerWithSignature<QList<QByteArray>>();
        return true;
    }();
}
