#include "ui/menubar/TrayHost.h"

#include "support/MainLoop.h"
#include "support/PrivateBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

const auto watcher = u"org.kde.StatusNotifierWatcher"_s;
const auto watcherPath = u"/StatusNotifierWatcher"_s;

/// A desktop's watcher, with a host or without.
class FakeWatcher : public QDBusVirtualObject
{
public:
    explicit FakeWatcher(const QDBusConnection& bus) : m_bus(bus)
    {
        m_bus.registerVirtualObject(watcherPath, this);
        begin();
    }

    void begin() { EXPECT_TRUE(m_bus.registerService(watcher)); }

    void end() { EXPECT_TRUE(m_bus.unregisterService(watcher)); }

    void setHost(bool hasHost)
    {
        m_hasHost = hasHost;
        m_bus.send(QDBusMessage::createSignal(watcherPath, watcher,
                                              hasHost ? u"StatusNotifierHostRegistered"_s
                                                      : u"StatusNotifierHostUnregistered"_s));
    }

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        EXPECT_EQ(message.arguments(), (QVariantList{watcher, u"IsStatusNotifierHostRegistered"_s}));
        connection.send(message.createReply(QVariant::fromValue(QDBusVariant(m_hasHost))));
        ++questions;
        return true;
    }

    int questions = 0;

private:
    QDBusConnection m_bus;
    bool m_hasHost = false;
};

} // namespace

TEST(TrayHost, FollowsTheHostAndNotItsWatcher)
{
    const PrivateBus bus;
    FakeWatcher desktop(QDBusConnection::connectToBus(bus.address(), u"desktop"_s));
    TrayHost host(QDBusConnection::connectToBus(bus.address(), u"program"_s));
    int appeared = 0;
    QObject::connect(&host, &TrayHost::appeared, &host, [&] { ++appeared; });
    EXPECT_TRUE(handleEventsUntil([&] { return desktop.questions == 1; }));
    handleWaitingEvents();
    EXPECT_TRUE(!host.isThere() && appeared == 0) << "the watcher is up before its host";

    desktop.setHost(true);
    EXPECT_TRUE(handleEventsUntil([&] { return appeared == 1; }));
    EXPECT_TRUE(host.isThere());
    desktop.setHost(false);
    EXPECT_TRUE(handleEventsUntil([&] { return !host.isThere(); }));

    desktop.setHost(true);
    EXPECT_TRUE(handleEventsUntil([&] { return appeared == 2; }));
    desktop.end();
    EXPECT_TRUE(handleEventsUntil([&] { return !host.isThere(); })) << "with its watcher";
    desktop.begin();
    EXPECT_TRUE(handleEventsUntil([&] { return appeared == 3; }));
    QDBusConnection::disconnectFromBus(u"desktop"_s);
    QDBusConnection::disconnectFromBus(u"program"_s);
}

} // namespace aerolith
