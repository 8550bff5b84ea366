#include "app/instance/X11Startup.h"

#include <QWidget>

#include <algorithm>

namespace aerolith::x11 {

namespace {

constexpr uint32_t fromApplication = 1;

xcb_window_t rootWindow(xcb_connection_t* connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

xcb_client_message_event_t message(const QWidget& window, xcb_atom_t type, uint8_t format)
{
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = format;
    event.window = static_cast<xcb_window_t>(window.winId());
    event.type = type;
    return event;
}

void sendToRoot(const xcb_client_message_event_t& event, uint32_t receivers)
{
    xcb_send_event(connection(), 0, rootWindow(connection()), receivers,
                   reinterpret_cast<const char*>(&event));
}

/// The X server tells its time in events alone: one is brought about, on a connection of its own, for Qt
/// takes those that come on the other.
xcb_timestamp_t serverTime()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> own(xcb_connect(nullptr, nullptr),
                                                                           &xcb_disconnect);
    if (xcb_connection_has_error(own.get()) != 0) {
        return XCB_CURRENT_TIME;
    }
    const xcb_window_t window = xcb_generate_id(own.get());
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(own.get(), 0, window, rootWindow(own.get()), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_change_property(own.get(), XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0,
                        nullptr);
    xcb_flush(own.get());
    while (const Owned<xcb_generic_event_t> event{xcb_wait_for_event(own.get()), &std::free}) {
        if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY) {
            return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
        }
    }
    return XCB_CURRENT_TIME;
}

/// A value in a message about a start.
QByteArray quoted(const QByteArray& text)
{
    return '"' + QByteArray(text).replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

} // namespace

std::optional<xcb_timestamp_t> launchTime(const QByteArray& startupId)
{
    const qsizetype mark = startupId.lastIndexOf("_TIME");
    if (mark < 0) {
        return {};
    }
    bool isNumber = false;
    const uint time = startupId.sliced(mark + 5).toUInt(&isNumber);
    return isNumber && time != XCB_CURRENT_TIME ? std::optional<xcb_timestamp_t>(time) : std::nullopt;
}

void focus(const QWidget& window, const QByteArray& startupId)
{
    const auto time = launchTime(startupId);
    auto event = message(window, atom(connection(), "_NET_ACTIVE_WINDOW"), 32);
    event.data.data32[0] = fromApplication;
    event.data.data32[1] = time ? *time : serverTime();
    sendToRoot(event, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
    xcb_flush(connection());
}

void endStartup(const QWidget& window, const QByteArray& startupId)
{
    if (startupId.isEmpty()) {
        return;
    }
    // With the zero at its end, in as many messages as it takes.
    const QByteArray text = "remove: ID=" + quoted(startupId) + '\0';
    xcb_atom_t type = atom(connection(), "_NET_STARTUP_INFO_BEGIN");
    for (qsizetype sent = 0; sent < text.size();) {
        auto event = message(window, type, 8);
        const auto length = std::min(text.size() - sent, static_cast<qsizetype>(std::size(event.data.data8)));
        std::copy_n(text.cbegin() + sent, length, event.data.data8);
        sendToRoot(event, XCB_EVENT_MASK_PROPERTY_CHANGE);
        sent += length;
        type = atom(connection(), "_NET_STARTUP_INFO");
    }
    xcb_flush(connection());
}

} // namespace aerolith::x11
