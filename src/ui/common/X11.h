#pragma once

#include <QByteArray>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// What is asked of the X server directly, where Qt has no question for it. GUI thread.
namespace aerolith::x11 {

/// A reply or an event, which is the receiver's to free.
template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// Qt's own connection; null where the program is no X11 client.
[[nodiscard]] xcb_connection_t* connection();

/// XCB_ATOM_NONE when the server does not answer.
[[nodiscard]] xcb_atom_t atom(xcb_connection_t* connection, const QByteArray& name);

} // namespace aerolith::x11
