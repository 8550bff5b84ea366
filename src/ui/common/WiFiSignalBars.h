#pragma once

#include <QColor>
#include <QList>
#include <QPalette>
#include <QRectF>
#include <QSizeF>

class QPainter;

namespace aerolith {

/// The signal-strength glyph that several views share: bars of rising height about one middle line, as many
/// of them lit as the signal deserves.
struct WiFiSignalBars
{
    /// dBm.
    qint64 rssi = 0;
    /// Drawn on the highlight of a selected row.
    bool isSelected = false;
    /// At least 0. No more than 4 bars are ever lit.
    int barCount = 4;

    /// Bars 0 up to this one are lit.
    [[nodiscard]] int litCount() const;

    /// In the middle of `frame`, device-independent pixels.
    void paint(QPainter& painter, const QRectF& frame, const QPalette& palette) const;

private:
    /// Device-independent pixels; zero without bars.
    [[nodiscard]] QSizeF size() const;

    /// From the left.
    [[nodiscard]] QList<QRectF> bars(const QRectF& frame) const;

    [[nodiscard]] QColor color(bool lit, const QPalette& palette) const;
};

} // namespace aerolith
