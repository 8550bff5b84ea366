#include "ui/menubar/WiFiConnectionManager.h"

#include "ui/menubar/PasswordDialog.h"
#include "ui/menubar/WaitState.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct WiFiConnectionManagerTexts
{
    Q_DECLARE_TR_FUNCTIONS(WiFiConnectionManager)
};

bool needsPassword(const CWNetwork& network)
{
    constexpr std::array passwordKinds{CWSecurity::wep, CWSecurity::wpaPersonal, CWSecurity::wpaPersonalMixed,
                                       CWSecurity::wpa2Personal, CWSecurity::wpa3Personal};
    return std::any_of(passwordKinds.begin(), passwordKinds.end(),
                       [&](CWSecurity kind) { return network.supportsSecurity(kind); });
}

Failure associate(CWInterface& interface, const CWNetwork& network, const std::optional<QString>& password)
{
    const WaitState waiting;
    return interface.associateToNetwork(network, password);
}

void showFailure(const Error& error)
{
    Alert alert(WiFiConnectionManagerTexts::tr("Connection Failed"), error.description);
    alert.exec();
}

} // namespace

void WiFiConnectionManager::connectTo(const CWNetwork& network)
{
    const std::shared_ptr<CWInterface> interface = m_wifiClient.interface();
    if (interface == nullptr) {
        return;
    }
    if (needsPassword(network)) {
        promptAndAssociate(network, *interface);
    } else {
        associateOpen(network, *interface);
    }
}

void WiFiConnectionManager::associateOpen(const CWNetwork& network, CWInterface& interface)
{
    if (const Failure failure = associate(interface, network, {})) {
        showFailure(*failure);
    }
}

void WiFiConnectionManager::promptAndAssociate(const CWNetwork& network, CWInterface& interface)
{
    std::optional<PasswordDialog> dialog(std::in_place, network.ssid.value_or(QString()));
    if (!dialog->ask()) {
        return;
    }
    const Failure failure = associate(interface, network, dialog->takePassword().text());
    dialog.reset();
    if (failure) {
        showFailure(*failure);
    }
}

} // namespace aerolith
