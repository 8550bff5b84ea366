#pragma once

#include <QRectF>

#include <optional>

namespace aerolith {

/// Sizes of a row's texts, measured in the fonts that they are drawn in. Device-independent pixels.
struct NetworkRowMetrics
{
    double nameWidth = 0;
    double nameHeight = 0;
    double detailsHeight = 0;
    double signalWidth = 0;
};

/// Where the elements of a row stand. Device-independent pixels.
struct NetworkRowLayout
{
    QRectF bars;
    /// Narrower than the name where it does not fit.
    QRectF name;
    /// The mark of the joined network; absent in any other row.
    std::optional<QRectF> checkmark;
    QRectF details;
    QRectF symbol;
    QRectF signal;

    /// Left and right exchanged, for languages that are written from right to left.
    [[nodiscard]] NetworkRowLayout mirrored(const QRectF& row) const;
};

[[nodiscard]] double networkRowHeight(const NetworkRowMetrics& metrics);

/// For a row of any size: where it is too narrow for all, texts shrink to nothing before anything overlaps.
[[nodiscard]] NetworkRowLayout layOutNetworkRow(const QRectF& row, const NetworkRowMetrics& metrics,
                                                bool isJoined);

} // namespace aerolith
