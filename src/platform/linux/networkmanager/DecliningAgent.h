#pragma once

#include "platform/linux/networkmanager/BusConnection.h"

#include <QDBusVirtualObject>
#include <QString>

namespace aerolith {

/// Keeps the desktop from asking for another password when the one of a join was wrong: a secret agent, asked
/// by NetworkManager before all others as it belongs to who asked to join, that gives none. Everybody else's
/// questions it leaves to the other agents. Answers while its thread handles events.
class DecliningAgent : public QDBusVirtualObject
{
public:
    /// `bus` outlives this object. Where NetworkManager does not take it, the desktop may ask.
    explicit DecliningAgent(const BusConnection& bus);
    ~DecliningAgent() override;

    /// The object of the profile that is being joined with.
    void setProfile(const QString& path) { m_profile = path; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    const BusConnection& m_bus;
    QString m_profile;
};

} // namespace aerolith
