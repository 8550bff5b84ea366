#include "ui/menubar/TrayHost.h"

#include "ui/common/X11.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QGuiApplication>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

const QString& notifierWatcher()
{
    static const QString name = u"org.kde.StatusNotifierWatcher"_s;
    return name;
}

/// The tray of the first screen; hardly an X11 display has another.
bool isX11TrayThere()
{
    xcb_connection_t* connection = x11::connection();
    if (connection == nullptr) {
        return false;
    }
    const auto request = xcb_get_selection_owner(connection, x11::atom(connection, "_NET_SYSTEM_TRAY_S0"));
    const x11::Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, request, nullptr), &std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

bool isNotifierThere()
{
    const QDBusConnectionInterface* bus = QDBusConnection::sessionBus().interface();
    return bus != nullptr && bus->isServiceRegistered(notifierWatcher());
}

} // namespace

TrayHost::TrayHost()
    : m_watcher(notifierWatcher(), QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &TrayHost::appeared);
    if (xcb_connection_t* connection = x11::connection()) {
        m_managerAtom = x11::atom(connection, "MANAGER");
        qGuiApp->installNativeEventFilter(this);
    }
}

TrayHost::~TrayHost()
{
    if (qGuiApp != nullptr) {
        qGuiApp->removeNativeEventFilter(this);
    }
}

bool TrayHost::isThere()
{
    return isNotifierThere() || isX11TrayThere();
}

/// A tray that begins says so to every client, once it is the owner of its selection.
bool TrayHost::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*)
{
    if (eventType == "xcb_generic_event_t") {
        const auto* event = static_cast<const xcb_client_message_event_t*>(message);
        const int type = event->response_type & 0x7F;
        if (type == XCB_CLIENT_MESSAGE && event->type == m_managerAtom) {
            Q_EMIT appeared();
        }
    }
    return false;
}

} // namespace aerolith
