#include "platform/linux/networkmanager/JoinFailure.h"

#include "platform/JoinTexts.h"

namespace aerolith {

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
               ? JoinTexts::tr(
                     "The network does not let this machine in: the password is probably not correct")
               : JoinTexts::tr("The network does not let this machine in");
}

QString describe(quint32 reason, const CWNetwork& network, bool stillHeard)
{
    switch (static_cast<Reason>(reason)) {
    case Reason::noSecrets:
        return takesPassword(network)
                   ? JoinTexts::tr("The password is not correct")
                   : JoinTexts::tr("The login that is stored for the network is not correct");
    case Reason::ssidNotFound:
        return stillHeard ? refusal(network) : JoinTexts::tr("The network is out of reach");
    case Reason::noAddress:
    case Reason::dhcpStart:
    case Reason::dhcpError:
    case Reason::dhcpFailed:
        return JoinTexts::tr("The network gave this machine no address");
    case Reason::supplicantDisconnected:
        return JoinTexts::tr("The access point broke off the attempt to join");
    case Reason::supplicantTimeout:
        return JoinTexts::tr("The access point did not answer in time");
    case Reason::supplicantConfiguration:
    case Reason::supplicantFailed:
        return JoinTexts::tr("This machine's Wi-Fi service failed to join the network");
    case Reason::deviceRemoved:
        return JoinTexts::tr("The Wi-Fi interface is gone");
    case Reason::sleeping:
        return JoinTexts::tr("Networking was switched off, or the machine went to sleep");
    case Reason::profileRemoved:
    case Reason::userRequested:
        return JoinTexts::tr("The attempt to join was ended from elsewhere");
    case Reason::otherActivation:
        return JoinTexts::tr("Another connection was started meanwhile");
    }
    return JoinTexts::tr("NetworkManager failed to join the network, for its reason number %1").arg(reason);
}

} // namespace

Error joinFailure(const ActivationEnd& end, const CWNetwork& network, bool stillHeard)
{
    switch (end.outcome) {
    case ActivationOutcome::refused:
        return end.refusal.failure == RemoteFailure::permissionDenied
                   ? Error{JoinTexts::tr("The system does not permit this user to join networks")}
                   : end.refusal.error();
    case ActivationOutcome::vanished:
        return {JoinTexts::tr("NetworkManager ended during the attempt to join")};
    case ActivationOutcome::stopped:
        return {JoinTexts::tr("The attempt to join was stopped")};
    case ActivationOutcome::outOfTime:
        return {end.state >= DeviceState::gettingAddress
                    ? JoinTexts::tr("The network gave this machine no address in time")
                    : JoinTexts::tr("Joining the network took too long")};
    case ActivationOutcome::activated:
    case ActivationOutcome::failed:
        break;
    }
    return {describe(end.reason, network, stillHeard)};
}

} // namespace aerolith
