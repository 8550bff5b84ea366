#pragma once

#include "model/WiFiNetwork.h"

#include <QString>

class QFont;
class QPainter;
class QPalette;
class QRectF;

namespace aerolith {

/// One access point as a row of the list: what it says, and how it is painted.
struct NetworkRowView
{
    WiFiNetwork network;
    /// The user has hidden the access point; it is listed because hidden ones are shown.
    bool isHidden = false;
    /// Drawn on the highlight, which the list itself draws.
    bool isSelected = false;

    /// "WPA2 • Ch 36 (5 GHz)".
    [[nodiscard]] QString details() const;

    /// The row in words.
    [[nodiscard]] QString accessibleText() const;

    /// Height of every row in this font (its family counts, not its size), whatever the row says.
    [[nodiscard]] static int height(const QFont& font);

    /// Paints within `rect`; `palette` and `font` are those of the list, and the painter's layout direction
    /// is its direction.
    void paint(QPainter& painter, const QRectF& rect, const QPalette& palette, const QFont& font) const;

private:
    /// The network name as one line of plain text.
    [[nodiscard]] QString name() const;

    /// "-58 dBm".
    [[nodiscard]] QString signal() const;

    /// The name of the lock symbol.
    [[nodiscard]] QString symbol() const;

    /// Of everything in the row.
    [[nodiscard]] double opacity() const;
};

} // namespace aerolith
