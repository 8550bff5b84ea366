#include "ui/menubar/TrayHost.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

const QString& notifierWatcher()
{
    static const QString name = u"org.kde.StatusNotifierWatcher"_s;
    return name;
}

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// Null where the program is no X11 client.
xcb_connection_t* x11()
{
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application != nullptr ? application->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t* connection, const QByteArray& name)
{
    const auto request = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.constData());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, request, nullptr),
                                               &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// The tray of the first screen; hardly an X11 display has another.
bool isX11TrayThere()
{
    xcb_connection_t* connection = x11();
    if (connection == nullptr) {
        return false;
    }
    const auto request = xcb_get_selection_owner(connection, atom(connection, "_NET_SYSTEM_TRAY_S0"));
    const Owned<xcb_get_selection_owner_reply_t> reply(
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
    if (xcb_connection_t* connection = x11()) {
        m_managerAtom = atom(connection, "MANAGER");
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
