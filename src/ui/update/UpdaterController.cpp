#include "ui/update/UpdaterController.h"

#include <QApplication>

namespace aerolith {

namespace {

/// Not a dialog or a menu, which may be gone soon. None when the user is in another program.
QWidget* windowOfTheUser()
{
    QWidget* window = QApplication::activeWindow();
    while (window != nullptr && window->parentWidget() != nullptr) {
        window = window->parentWidget()->window();
    }
    return window;
}

} // namespace

UpdaterController::UpdaterController(const UpdateOptions& options, const UpdateSurroundings& surroundings)
    : m_updater(options, surroundings), m_publish([this] { showState(); })
{
    QObject::connect(&m_updater, &AppcastUpdater::stateChanged, &m_publish, &OncePerTurn::request);
    m_updater.start();
}

UpdaterController::~UpdaterController()
{
    delete m_dialog;
}

void UpdaterController::showState()
{
    if (std::holds_alternative<UpdateIdle>(m_updater.state())) {
        delete m_dialog;
    } else if (m_dialog != nullptr) {
        m_dialog->showState();
        if (std::holds_alternative<UpdateChecking>(m_updater.state())) {
            m_dialog->activateWindow();
        }
    } else {
        showDialog();
    }
}

void UpdaterController::showDialog()
{
    m_dialog = new UpdateDialog(m_updater, windowOfTheUser());
    // What nobody has asked for does not take the keyboard away from what somebody does.
    m_dialog->setAttribute(Qt::WA_ShowWithoutActivating,
                           !std::holds_alternative<UpdateChecking>(m_updater.state()));
    m_dialog->show();
}

} // namespace aerolith
