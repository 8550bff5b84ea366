#pragma once

#include "ui/common/X11.h"

#include <QByteArray>

#include <optional>

class QWidget;

/// Coming to the front on X11 on behalf of a start in another process. Qt's own activation tells the window
/// manager when this process has last seen input, which is too long ago for it to give the focus away.
namespace aerolith::x11 {

/// When the user asked for the start, by the X server's clock; absent when the identifier does not tell.
[[nodiscard]] std::optional<xcb_timestamp_t> launchTime(const QByteArray& startupId);

/// Asks for the keyboard focus in the name of that start; without its time, of one that is happening now.
/// The window is shown.
void focus(const QWidget& window, const QByteArray& startupId);

/// Tells the desktop, which shows the user that something is starting, that it has. Nothing for an empty
/// identifier.
void endStartup(const QWidget& window, const QByteArray& startupId);

} // namespace aerolith::x11
