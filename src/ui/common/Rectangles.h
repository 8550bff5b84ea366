#pragma once

#include <QRectF>

#include <optional>

namespace aerolith {

/// A rectangle with its middle at `centre`.
[[nodiscard]] inline QRectF centredOn(const QPointF& centre, const QSizeF& size)
{
    return {centre - QPointF(size.width(), size.height()) / 2, size};
}

/// A rectangle that begins at `left`, with its vertical middle at `middle`.
[[nodiscard]] inline QRectF centredBeside(double left, double middle, const QSizeF& size)
{
    return {QPointF(left, middle - size.height() / 2), size};
}

/// Left and right exchanged within `row`.
[[nodiscard]] inline QRectF mirrored(const QRectF& rect, const QRectF& row)
{
    return rect.translated(row.left() + row.right() - rect.left() - rect.right(), 0);
}

[[nodiscard]] inline std::optional<QRectF> mirrored(const std::optional<QRectF>& rect, const QRectF& row)
{
    return rect ? std::optional(mirrored(*rect, row)) : std::nullopt;
}

} // namespace aerolith
