#include "ui/update/CheckForUpdatesView.h"

namespace aerolith {

using namespace Qt::StringLiterals;

CheckForUpdatesView::CheckForUpdatesView(Updater& updater, QObject* parent)
    : QAction(tr("Check for Updates\u2026"), parent), m_checkForUpdatesViewModel(updater), m_updater(updater)
{
    setObjectName(u"checkForUpdates"_s);
    connect(this, &QAction::triggered, this, [this] { m_updater.checkForUpdates(); });
    connect(&m_checkForUpdatesViewModel, &CheckForUpdatesViewModel::canCheckForUpdatesChanged, this,
            &CheckForUpdatesView::showState);
    showState();
}

void CheckForUpdatesView::showState()
{
    setEnabled(m_checkForUpdatesViewModel.canCheckForUpdates());
}

} // namespace aerolith
