#pragma once

#include <QColor>
#include <QPixmap>
#include <QRectF>
#include <QString>

class QPainter;

/// The symbols of the views, by name ("lock", "checkmark.circle.fill"). Each is a file in symbols/, one shape
/// in one colour; CMakeLists.txt lists them, and symbols/README.md tells how one is drawn. GUI thread.
namespace aerolith::Symbols {

/// The symbol in `color`, `size` device-independent pixels square, drawn for the device's own pixels. Cached.
/// Empty for a name that there is no symbol for.
[[nodiscard]] QPixmap pixmap(const QString& name, int size, const QColor& color, qreal devicePixelRatio);

/// Exchanges left and right about the middle of `frame` for a symbol that points to a side, where the
/// painter's layout direction is from right to left.
void mirrorIfPointing(QPainter& painter, const QRectF& frame, const QString& name);

/// Draws the symbol into the middle of `frame`, as large as the frame's height. One that points to a side
/// points to the other where the painter's layout direction is from right to left.
void paint(QPainter& painter, const QRectF& frame, const QString& name, const QColor& color);

} // namespace aerolith::Symbols
