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
    while (m_rows.size() < facts.size()) {
        m_rows.append(new InfoRow);
        m_box->rows().addWidget(m_rows.last());
    }
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        m_rows[i]->setVisible(i < facts.size());
        if (i < facts.size()) {
            m_rows[i]->showFact(facts[i]);
        }
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
