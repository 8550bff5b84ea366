#include "ui/detail/NetworkInfoDialog.h"

#include "ui/common/TitledBox.h"
#include "ui/detail/InfoRow.h"
#include "ui/detail/InterfaceSnapshot.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int sheetWidth = 400;
constexpr int sheetSpacing = 16;
constexpr int rowSpacing = 12;

} // namespace

NetworkInfoDialog::NetworkInfoDialog(std::shared_ptr<const CWInterface> interface,
                                     const HostAddresses& addresses, Workspace& workspace, Log& log,
                                     QWidget* parent)
    : Sheet(sheetWidth, sheetSpacing, parent)
    , m_interface(std::move(interface))
    , m_addresses(addresses)
    , m_workspace(workspace)
    , m_log(log)
    , m_box(new TitledBox(tr("Network Interface Information"), rowSpacing))
{
    setObjectName(u"networkInfoDialog"_s);
    setWindowTitle(tr("Network Interface Information"));
    content().addWidget(m_box);
    content().addLayout(makeButtons());
    readInterface();
}

void NetworkInfoDialog::readInterface()
{
    const auto facts = interfaceFacts(InterfaceSnapshot::read(m_interface.get(), m_addresses));
    // Rows that tell the same stay: the user may be copying from one.
    if (facts == m_facts) {
        return;
    }
    m_facts = facts;
    while (const auto* row = m_box->rows().takeAt(0)) {
        delete row->widget();
        delete row;
    }
    for (const InterfaceFact& fact : facts) {
        m_box->rows().addWidget(new InfoRow(fact.label, fact.value));
    }
}

QLayout* NetworkInfoDialog::makeButtons()
{
    auto* settings = new QPushButton(tr("Open Network Settings"));
    // The Return key is the default button's, wherever the focus is.
    settings->setAutoDefault(false);
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
