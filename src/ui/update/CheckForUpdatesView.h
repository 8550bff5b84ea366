#pragma once

#include "ui/update/CheckForUpdatesViewModel.h"

#include <QAction>

namespace aerolith {

/// The menu item "Check for Updates…": starts a check, and is disabled while none may be started. Ready to be
/// added to any menu.
class CheckForUpdatesView : public QAction
{
    Q_OBJECT

public:
    /// The updater outlives the item.
    explicit CheckForUpdatesView(Updater& updater, QObject* parent = nullptr);

private:
    void showState();

    CheckForUpdatesViewModel m_checkForUpdatesViewModel;
    Updater& m_updater;
};

} // namespace aerolith
