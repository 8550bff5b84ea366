#include "ui/menubar/TrayHost.h"

#include "ui/common/X11.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// The name of the service and of its interface.
constexpr auto notifierWatcher = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto notifierWatcherPath = "/StatusNotifierWatcher"_L1;

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

} // namespace

TrayHost::TrayHost(QDBusConnection bus)
    : m_bus(std::move(bus)), m_watcher(notifierWatcher, m_bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &TrayHost::askWatcher);
    // Of any sender: Qt would block for the name of one. What they say is asked for in any case.
    for (const auto& signal : {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s}) {
        m_bus.connect(QString(), notifierWatcherPath, notifierWatcher, signal, this, SLOT(askWatcher()));
    }
    askWatcher();
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

bool TrayHost::isThere() const
{
    return m_hasNotifierHost || isX11TrayThere();
}

/// The watcher alone shows no icons: it is mostly there before the bar, its host, and may outlive it.
void TrayHost::askWatcher()
{
    auto question = QDBusMessage::createMethodCall(notifierWatcher, notifierWatcherPath,
                                                   u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question.setAutoStartService(false);
    question << QString(notifierWatcher) << u"IsStatusNotifierHostRegistered"_s;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        m_hasNotifierHost = !reply.isError() && reply.value().variant().toBool();
        answer->deleteLater();
        if (m_hasNotifierHost) {
            Q_EMIT appeared();
        }
    });
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
