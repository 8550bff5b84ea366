#pragma once

#include "model/WiFiNetwork.h"
#include "ui/menubar/MenuRowLayout.h"

#include <QString>

class QFont;
class QPainter;
class QPalette;

namespace aerolith {

/// One access point as a row of the popover: what it says, and how it is painted.
struct NetworkRowInMenu
{
    WiFiNetwork network;
    /// The pointer is over the row.
    bool isHovering = false;
    /// The keys have led to the row.
    bool isFocused = false;

    /// What pressing the row's button does, or that the machine is joined.
    [[nodiscard]] QString accessibleText() const;

    /// In this font; its family counts, not its size. The joined network's row is higher than all others.
    [[nodiscard]] static int height(const QFont& font, bool isJoined);

    /// Of the row in `rect`, in the layout direction.
    [[nodiscard]] MenuRowLayout layout(const QRectF& rect, const QFont& font,
                                       Qt::LayoutDirection direction) const;

    /// Paints within `rect`; `palette` and `font` are those of the list, and the painter's layout direction
    /// is its direction.
    void paint(QPainter& painter, const QRectF& rect, const QPalette& palette, const QFont& font) const;

private:
    void paintBackground(QPainter& painter, const QRectF& rect, const QPalette& palette) const;
    void paintButton(QPainter& painter, const MenuRowLayout& layout, const QPalette& palette) const;
    void paintChart(QPainter& painter, const QRectF& rect, const QPalette& palette, const QFont& font) const;
};

} // namespace aerolith
