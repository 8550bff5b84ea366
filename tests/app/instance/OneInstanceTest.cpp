#include "app/instance/OneInstance.h"

#include "support/MainLoop.h"
#include "support/PrivateBus.h"

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(OneInstance, TakesNoRefusalOfTheBusForAnotherInstance)
{
    startMainLoop();
    const PrivateBus bus(u"org.aerolith.Aerolith"_s);
    OneInstance instance(QDBusConnection::connectToBus(bus.address(), u"instance"_s));
    const auto role = instance.claim({});
    ASSERT_FALSE(role.ok());
    EXPECT_TRUE(
        role.error().description.startsWith(u"Cannot tell whether Aerolith is running already: Connection"_s))
        << role.error().description.toStdString();
    EXPECT_FALSE(instance.isFirst());
    QDBusConnection::disconnectFromBus(u"instance"_s);
}

} // namespace aerolith
