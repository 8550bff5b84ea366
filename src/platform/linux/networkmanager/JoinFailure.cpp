#include "platform/linux/networkmanager/JoinFailure.h"

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// The reasons that NetworkManager gives for a device's change of state, by their numbers on the bus.
enum class Reason : quint32
{
    noAddress = 5,
    noSecrets = 7,
    supplicantDisconnected = 8,
    supplicantConfiguration = 9,
    supplicantFailed = 10,
    supplicantTimeout = 11,
    dhcpStart = 15,
    dhcpError = 16,
    dhcpFailed = 17,
    deviceRemoved = 36,
    sleeping = 37,
    profileRemoved = 38,
    userRequested = 39,
    ssidNotFound = 53,
    otherActivation = 60,
};

bool takesPassword(const CWNetwork& network)
{
    return network.supportsSecurity(CWSecurity::personal) || network.supportsSecurity(CWSecurity::wep);
}

QString refusal(const CWNetwork& network)
{
    // What refuses right after the names have been exchanged is WPA3's proof of the password, or WEP's.
    const auto provesPasswordEarly =
        network.supportsSecurity(CWSecurity::wpa3Personal) || network.supportsSecurity(CWSecurity::wep);
    return provesPasswordEarly
               ? u"The network does not let this machine in: the password is probably not correct"_s
               : u"The network does not let this machine in"_s;
}

QString describe(quint32 reason, const CWNetwork& network, bool stillHeard)
{
    switch (static_cast<Reason>(reason)) {
    case Reason::noSecrets:
        return takesPassword(network) ? u"The password is not correct"_s
                                      : u"The login that is stored for the network is not correct"_s;
    case Reason::ssidNotFound:
        return stillHeard ? refusal(network) : u"The network is out of reach"_s;
    case Reason::noAddress:
    case Reason::dhcpStart:
    case Reason::dhcpError:
    case Reason::dhcpFailed:
        return u"The network gave this machine no address"_s;
    case Reason::supplicantDisconnected:
        return u"The access point broke off the attempt to join"_s;
    case Reason::supplicantTimeout:
        return u"The access point did not answer in time"_s;
    case Reason::supplicantConfiguration:
    case Reason::supplicantFailed:
        return u"This machine's Wi-Fi service failed to join the network"_s;
    case Reason::deviceRemoved:
        return u"The Wi-Fi interface is gone"_s;
    case Reason::sleeping:
        return u"Networking was switched off, or the machine went to sleep"_s;
    case Reason::profileRemoved:
    case Reason::userRequested:
        return u"The attempt to join was ended from elsewhere"_s;
    case Reason::otherActivation:
        return u"Another connection was started meanwhile"_s;
    }
    return u"NetworkManager failed to join the network, for its reason number %1"_s.arg(reason);
}

} // namespace

Error joinFailure(const ActivationEnd& end, const CWNetwork& network, bool stillHeard)
{
    switch (end.outcome) {
    case ActivationOutcome::refused:
        return end.refusal.failure == RemoteFailure::permissionDenied
                   ? Error{u"The system does not permit this user to join networks"_s}
                   : end.refusal.error();
    case ActivationOutcome::vanished:
        return {u"NetworkManager ended during the attempt to join"_s};
    case ActivationOutcome::stopped:
        return {u"The attempt to join was stopped"_s};
    case ActivationOutcome::outOfTime:
        return {end.state >= DeviceState::gettingAddress
                    ? u"The network gave this machine no address in time"_s
                    : u"Joining the network took too long"_s};
    case ActivationOutcome::activated:
    case ActivationOutcome::failed:
        break;
    }
    return {describe(end.reason, network, stillHeard)};
}

} // namespace aerolith
