#pragma once

#include "ui/common/OncePerTurn.h"
#include "ui/update/UpdateDialog.h"
#include "update/AppcastUpdater.h"

#include <QPointer>

namespace aerolith {

/// The updater with its user interface: shows a dialog over the window that the user is in while there is
/// something to see. Lives for the process. Main thread.
class UpdaterController
{
public:
    /// Starts the updater. A QApplication exists; the surroundings outlive this object.
    UpdaterController(const UpdateOptions& options, const UpdateSurroundings& surroundings);
    UpdaterController(const UpdaterController&) = delete;
    UpdaterController& operator=(const UpdaterController&) = delete;
    ~UpdaterController();

    [[nodiscard]] Updater& updater() { return m_updater; }

private:
    void showState();
    void showDialog();

    AppcastUpdater m_updater;
    /// It may go with its window.
    QPointer<UpdateDialog> m_dialog;
    OncePerTurn m_publish;
};

} // namespace aerolith
