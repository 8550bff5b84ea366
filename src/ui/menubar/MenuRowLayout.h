#pragma once

#include <QRectF>

#include <optional>

namespace aerolith {

/// Sizes of a row's texts, measured in the fonts that they are drawn in. Device-independent pixels.
struct MenuRowMetrics
{
    double nameHeight = 0;
    double connectWidth = 0;
    double connectHeight = 0;
};

/// Where the elements of a popover's row stand. Device-independent pixels.
struct MenuRowLayout
{
    /// The row without its divider.
    QRectF row;
    QRectF bars;
    /// As wide as a name may be.
    QRectF name;
    /// Absent in the joined network's row.
    std::optional<QRectF> connect;
    /// The lock, or the mark of the joined network.
    QRectF symbol;
    /// In the joined network's row only.
    std::optional<QRectF> chart;
    /// In every other row.
    std::optional<QRectF> divider;

    /// What is pressed to join: the word and the lock, and the padding around them.
    [[nodiscard]] QRectF button() const;

    /// Left and right exchanged, for languages that are written from right to left.
    [[nodiscard]] MenuRowLayout mirrored() const;
};

/// With its divider.
[[nodiscard]] double menuRowHeight(const MenuRowMetrics& metrics, bool isJoined);

[[nodiscard]] MenuRowLayout layOutMenuRow(const QRectF& row, const MenuRowMetrics& metrics, bool isJoined);

} // namespace aerolith
