#pragma once

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QMap>
#include <QString>
#include <QVariantMap>

// The types that NetworkManager's interfaces use beyond those that D-Bus bindings know by themselves. Outside
// the namespace, where the generated proxies look for them.

/// Permission by name: "yes", "auth", "no" or "unknown".
using PermissionMap = QMap<QString, QString>;

/// A connection profile: its settings by section and name.
using ConnectionSettings = QMap<QString, QVariantMap>;

/// What there is: the properties of every object, by interface and name.
using ManagedObjects = QMap<QDBusObjectPath, QMap<QString, QVariantMap>>;

/// D-Bus "(uu)".
struct DeviceStateReason
{
    quint32 state = 0;
    quint32 reason = 0;
};

Q_DECLARE_METATYPE(DeviceStateReason)

QDBusArgument& operator<<(QDBusArgument& argument, const DeviceStateReason& value);
const QDBusArgument& operator>>(const QDBusArgument& argument, DeviceStateReason& value);

/// Tells the D-Bus binding of these types; before the first call that uses one. Any thread, any number of
/// times.
void registerDBusTypes();
