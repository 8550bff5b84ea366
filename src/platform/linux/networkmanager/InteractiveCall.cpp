#include "platform/linux/networkmanager/InteractiveCall.h"

#include "platform/linux/networkmanager/NetworkManager.h"

namespace aerolith {

QDBusMessage interactiveCall(const QString& path, const char* interface, const QString& method,
                             const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(NetworkManager::serviceName, path,
                                                  QString::fromLatin1(interface), method);
    message.setArguments(arguments);
    message.setInteractiveAuthorizationAllowed(true);
    return message;
}

} // namespace aerolith
