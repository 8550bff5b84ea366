#pragma once

#include <QDBusAbstractInterface>
#include <QDBusConnection>

namespace aerolith {

/// polkit, which decides for NetworkManager what a user may do. Never started or called from here. Belongs to
/// the thread that makes it; needs its event loop.
class PolkitAuthority : public QDBusAbstractInterface
{
    Q_OBJECT

public:
    explicit PolkitAuthority(const QDBusConnection& connection)
        : QDBusAbstractInterface(QStringLiteral("org.freedesktop.PolicyKit1"),
                                 QStringLiteral("/org/freedesktop/PolicyKit1/Authority"),
                                 "org.freedesktop.PolicyKit1.Authority", connection, nullptr)
    {
    }

Q_SIGNALS:
    /// By polkit's name for it: an answer may be another one from now on.
    void Changed();
};

} // namespace aerolith
