#pragma once

#include <QDBusMessage>
#include <QString>
#include <QVariantList>

namespace aerolith {

/// A call to NetworkManager for which the system may first ask the user to prove who they are.
[[nodiscard]] QDBusMessage interactiveCall(const QString& path, const char* interface, const QString& method,
                                           const QVariantList& arguments);

} // namespace aerolith
