#include "ui/menubar/StatusIcon.h"

#include "ui/common/PaintedIconEngine.h"
#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"

#include <QGuiApplication>
#include <QPainter>

#include <cmath>
#include <numbers>
#include <utility>

namespace aerolith {

namespace {

/// Of the icon's size.
constexpr double rimWidth = 1 / 22.0;
constexpr double rimOpacity = 0.45;
constexpr int rimSteps = 8;
constexpr QColor light(255, 255, 255);
constexpr QColor dark(46, 46, 46);

/// Drawn when it is asked for, at the size that the desktop wants.
class RimmedIconEngine : public PaintedIconEngine
{
public:
    explicit RimmedIconEngine(QString symbol) : m_symbol(std::move(symbol)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        const bool isDark = Theme::isDark(QGuiApplication::palette());
        const QRectF inside = QRectF(rect).adjusted(1, 1, -1, -1);
        // The rim is the symbol itself, moved a little in every direction.
        const QColor rim = Theme::withOpacity(isDark ? dark : light, rimOpacity);
        const QPixmap moved =
            Symbols::pixmap(m_symbol, rect.height() - 2, rim, painter->device()->devicePixelRatioF());
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        for (int step = 0; step < rimSteps; ++step) {
            const double angle = 2 * std::numbers::pi * step / rimSteps;
            const QPointF way(std::cos(angle), std::sin(angle));
            painter->drawPixmap(inside.topLeft() + way * rimWidth * rect.height(), moved);
        }
        Symbols::paint(*painter, inside, m_symbol, isDark ? light : dark);
    }

    [[nodiscard]] QIconEngine* clone() const override { return new RimmedIconEngine(*this); }

private:
    QString m_symbol;
};

} // namespace

QIcon statusIcon(const QString& symbol)
{
    return QIcon(new RimmedIconEngine(symbol));
}

} // namespace aerolith
