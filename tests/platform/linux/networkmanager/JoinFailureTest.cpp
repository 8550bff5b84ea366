#include "platform/linux/networkmanager/JoinFailure.h"

#include <QSet>

#include <gtest/gtest.h>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;
using enum CWSecurity;

QString descriptionOf(quint32 reason, CWSecurity security, bool stillHeard = true)
{
    CWNetwork network;
    network.securityCodes.insert(static_cast<int>(security));
    return joinFailure({.outcome = ActivationOutcome::failed, .reason = reason}, network, stillHeard)
        .description;
}

TEST(JoinFailure, TellsAWrongPasswordFromANetworkThatIsGone)
{
    EXPECT_EQ(descriptionOf(7, personal), u"The password is not correct"_s);
    EXPECT_EQ(descriptionOf(7, enterprise), u"The login that is stored for the network is not correct"_s);
    EXPECT_EQ(descriptionOf(53, personal, false), u"The network is out of reach"_s);
    EXPECT_EQ(descriptionOf(53, wpa3Personal, false), u"The network is out of reach"_s);
    EXPECT_EQ(descriptionOf(53, personal), u"The network does not let this machine in"_s);
    const auto early = u"The network does not let this machine in: the password is probably not correct"_s;
    EXPECT_EQ(descriptionOf(53, wpa3Personal), early);
    EXPECT_EQ(descriptionOf(53, wep), early);
}

TEST(JoinFailure, HasASentenceForEveryCause)
{
    QSet<QString> sentences;
    const QList<quint32> causes{5, 7, 8, 9, 11, 36, 37, 39, 53, 60, 99};
    for (const auto reason : causes) {
        sentences.insert(descriptionOf(reason, personal));
    }
    EXPECT_EQ(sentences.size(), causes.size());
    EXPECT_TRUE(descriptionOf(99, personal).contains(u"99"_s));

    const auto outOfTime = [](DeviceState state) {
        return joinFailure({.outcome = ActivationOutcome::outOfTime, .state = state}, {}, true).description;
    };
    EXPECT_EQ(outOfTime(DeviceState::preparing), u"Joining the network took too long"_s);
    EXPECT_EQ(outOfTime(DeviceState::gettingAddress), u"The network gave this machine no address in time"_s);
}

} // namespace
} // namespace aerolith
