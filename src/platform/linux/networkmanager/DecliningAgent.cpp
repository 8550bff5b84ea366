#include "platform/linux/networkmanager/DecliningAgent.h"

#include "platform/linux/networkmanager/Call.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>

#include <org.freedesktop.NetworkManager.AgentManager.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

const auto agentPath = u"/org/freedesktop/NetworkManager/SecretAgent"_s;
const auto agentInterface = u"org.freedesktop.NetworkManager.SecretAgent"_s;
const auto managerPath = u"/org/freedesktop/NetworkManager/AgentManager"_s;

/// In the flags of a request: the secrets that were there have turned out to be wrong.
constexpr uint requestsNew = 0x2;

} // namespace

DecliningAgent::DecliningAgent(const BusConnection& bus) : m_bus(bus)
{
    auto connection = m_bus.connection();
    connection.registerVirtualObject(agentPath, this);
    Call<OrgFreedesktopNetworkManagerAgentManagerInterface> call(m_bus, managerPath);
    // No two agents of one user may have the same name.
    m_bus.await(call.proxy().Register(u"aerolith.p%1"_s.arg(QCoreApplication::applicationPid())));
}

// Closing the connection unregisters the agent too; the next join may come before that.
DecliningAgent::~DecliningAgent()
{
    auto connection = m_bus.connection();
    connection.unregisterObject(agentPath);
}

QString DecliningAgent::introspect(const QString&) const
{
    return {};
}

bool DecliningAgent::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (message.interface() != agentInterface) {
        return false;
    }
    if (message.member() == u"CancelGetSecrets"_s) {
        return connection.send(message.createReply());
    }
    if (message.member() != u"GetSecrets"_s) {
        // It neither saves nor deletes; NetworkManager then asks the next agent to.
        return connection.send(
            message.createErrorReply(agentInterface + u".Failed"_s, u"Aerolith stores no secrets"_s));
    }
    const auto arguments = message.arguments();
    const auto isOurs = arguments.value(1).value<QDBusObjectPath>().path() == m_profile;
    const auto declines = isOurs && (arguments.value(4).toUInt() & requestsNew) != 0;
    // Only the first of these keeps NetworkManager from asking the next agent.
    return connection.send(message.createErrorReply(declines ? agentInterface + u".UserCanceled"_s
                                                             : agentInterface + u".NoSecrets"_s,
                                                    u"Aerolith has no secrets"_s));
}

} // namespace aerolith
