#include "ui/menubar/ToolsButton.h"

#include <QMenu>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int toolsWidth = 80;
constexpr QSize toolsSymbol{14, 14};

} // namespace

ToolsButton::ToolsButton(Workspace& workspace, Log& log, QWidget* parent)
    : SymbolButton(u"wrench.and.screwdriver"_s, tr("Tools"), parent), m_workspace(workspace), m_log(log)
{
    setTitle(tr("Tools"));
    setIconSize(toolsSymbol);
    setFixedWidth(std::max(toolsWidth, sizeHint().width()));
    setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(this);
    menu->setObjectName(u"toolsMenu"_s);
    menu->setToolTipsVisible(true);
    menu->addAction(tr("Wi-Fi Settings..."), this,
                    [this] { report(m_workspace.openSettings(SettingsPage::wifi)); });
    m_diagnostics = menu->addAction(tr("Wireless Diagnostics..."), this,
                                    [this] { report(m_workspace.openDiagnostics()); });
    connect(menu, &QMenu::aboutToShow, this, &ToolsButton::checkDiagnostics);
    setMenu(menu);
}

/// What is missing may have been installed since.
void ToolsButton::checkDiagnostics()
{
    const Failure obstacle = m_workspace.diagnosticsObstacle();
    m_diagnostics->setEnabled(!obstacle);
    m_diagnostics->setToolTip(obstacle ? obstacle->description : QString());
}

void ToolsButton::report(const Failure& failure)
{
    if (failure) {
        m_log.line(failure->description);
    }
}

} // namespace aerolith
