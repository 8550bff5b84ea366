#pragma once

#include "ui/common/Theme.h"

#include <QHash>
#include <QImage>

#include <algorithm>

namespace aerolith {

/// How many pixels of a picture have each colour.
[[nodiscard]] inline QHash<QRgb, int> coloursOf(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    return counts;
}

/// Between what most of the picture shows, the ground, and what stands out from it most, the strokes of a
/// text. Strokes have their full colour only where they are some pixels wide: the picture is taken enlarged.
[[nodiscard]] inline double contrastWithin(const QImage& picture)
{
    const QHash<QRgb, int> counts = coloursOf(picture);
    const QColor ground(std::max_element(counts.cbegin(), counts.cend()).key());
    double largest = 1;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour) {
        largest = std::max(largest, Theme::contrast(QColor(colour.key()), ground));
    }
    return largest;
}

} // namespace aerolith
