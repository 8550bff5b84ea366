#include "app/instance/ShowInFront.h"

#include "app/instance/X11Startup.h"

#include <QWidget>

namespace aerolith {

void showInFront(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

void showInFront(QWidget& window, const StartupToken& token)
{
    if (!token.activationToken.isEmpty()) {
        // From here Qt takes it for its next activation on Wayland.
        qputenv("XDG_ACTIVATION_TOKEN", token.activationToken);
    }
    showInFront(window);
    if (x11::connection() != nullptr) {
        x11::focus(window, token.startupId);
        x11::endStartup(window, token.startupId);
    }
}

} // namespace aerolith
