#include "ui/detail/NetworkInfoDialog.h"

#include "ui/common/TitledBox.h"
#include "ui/detail/InfoRow.h"
#include "ui/detail/InterfaceSnapshot.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int sheetWidth = 400;
constexpr int sheetSpacing = 16;
constexpr int rowSpacing = 12;

} // namespace

NetworkInfoDialog::NetworkInfoDialog(const CWInterface* interface, const HostAddresses& addresses,
                                     Workspace& workspace, Log& log, QWidget* parent)
    : Sheet(sheetWidth, sheetSpacing, parent), m_workspace(workspace), m_log(log)
{
    setObjectName(u"networkInfoDialog"_s);
    const QString title = tr("Network Interface Information");
    setWindowTitle(title);

    auto* box = new TitledBox(title, rowSpacing);
    for (const InterfaceFact& fact : interfaceFacts(InterfaceSnapshot::read(interface, addresses))) {
        box->rows().addWidget(new InfoRow(fact.label, fact.value));
    }
    content().addWidget(box);
    content().addLayout(makeButtons());
}

QLayout* NetworkInfoDialog::makeButtons()
{
    auto* settings = new QPushButton(tr("Open Network Settings"));
    settings->setObjectName(u"openNetworkSettings"_s);
    connect(settings, &QPushButton::clicked, this, &NetworkInfoDialog::openNetworkSettings);
    auto* closeButton = new QPushButton(tr("Close"), this);
    closeButton->setObjectName(u"close"_s);
    closeButton->setDefault(true);
    closeButton->setFocus();
    connect(closeButton, &QPushButton::clicked, this, &NetworkInfoDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(settings);
    buttons->addStretch();
    buttons->addWidget(closeButton);
    return buttons;
}

void NetworkInfoDialog::openNetworkSettings()
{
    if (const Failure failure = m_workspace.openSettings(SettingsPage::network)) {
        m_log.line(failure->description);
    }
}

} // namespace aerolith
