#pragma once

#include <QByteArray>
#include <QVariantMap>

namespace aerolith {

/// What a launcher gives to the program that it starts, so that the desktop lets that program's window come
/// to the front: the user asked for it. Either may be empty.
struct StartupToken
{
    /// Of Wayland: good for one activation.
    QByteArray activationToken = {};
    /// Of X11: names the start, and mostly tells when the user asked for it.
    QByteArray startupId = {};

    /// What this process was started with. To be asked before there is a QApplication, which takes it away.
    [[nodiscard]] static StartupToken fromEnvironment();

    /// As org.freedesktop.Application passes it on; what is of a wrong type is not there.
    [[nodiscard]] static StartupToken fromPlatformData(const QVariantMap& data);
    [[nodiscard]] QVariantMap platformData() const;
};

} // namespace aerolith
