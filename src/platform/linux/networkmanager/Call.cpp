#include "platform/linux/networkmanager/Call.h"

#include <QDBusError>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

const auto properties = u"org.freedesktop.DBus.Properties"_s;

QString signatureOf(const QVariant& value)
{
    return value.metaType() == QMetaType::fromType<QDBusArgument>()
               ? value.value<QDBusArgument>().currentSignature()
               : QString::fromLatin1(QDBusMetaType::typeToSignature(value.metaType()));
}

} // namespace

QDBusPendingCall callMethod(const BusConnection& bus, const QString& path, const QString& interface,
                            const QString& method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(NetworkManager::serviceName, path, interface, method);
    message.setArguments(arguments);
    return bus.connection().asyncCall(message, static_cast<int>(bus.callLimit().count()));
}

std::optional<RemoteError> awaitAnswer(const BusConnection& bus, const QDBusPendingCall& call)
{
    bus.await(call);
    if (call.isError()) {
        return remoteError(call.error());
    }
    if (!call.isFinished()) {
        return RemoteError{RemoteFailure::noAnswer, u"NetworkManager has not answered yet"_s};
    }
    return {};
}

Result<QVariant> readOfType(QMetaType type, const BusConnection& bus, const QString& path,
                            const QString& interface, const QString& name)
{
    const QDBusPendingReply<QDBusVariant> answer =
        callMethod(bus, path, properties, u"Get"_s, {interface, name});
    if (const auto failure = awaitAnswer(bus, answer)) {
        return failure->error();
    }
    const auto value = answer.value().variant();
    const auto signature = signatureOf(value);
    if (signature != QLatin1StringView(QDBusMetaType::typeToSignature(type))) {
        return remoteError(QDBusError(QDBusError::InvalidSignature, u"%1 (%2)"_s.arg(name, signature)))
            .error();
    }
    return value;
}

std::optional<RemoteError> write(const BusConnection& bus, const QString& path, const QString& interface,
                                 const QString& name, const QVariant& value)
{
    return awaitAnswer(bus, callMethod(bus, path, properties, u"Set"_s,
                                       {interface, name, QVariant::fromValue(QDBusVariant(value))}));
}

} // namespace aerolith
