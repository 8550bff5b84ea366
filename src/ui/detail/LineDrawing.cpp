#include "ui/detail/LineDrawing.h"

#include "ui/common/Animations.h"
#include "ui/common/EaseInOut.h"

#include <QEasingCurve>
#include <QWidget>
#include <QWindow>

namespace aerolith {

namespace {

constexpr int drawingMilliseconds = 1500;

} // namespace

LineDrawing::LineDrawing(QWidget& chart, bool isAnimated)
    : m_chart(chart), m_isAnimated(isAnimated), m_animation(&chart)
{
    m_animation.setObjectName(QStringLiteral("drawing"));
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    m_animation.setDuration(drawingMilliseconds);
    m_animation.setEasingCurve(easeInOut());
    QObject::connect(&m_animation, &QVariantAnimation::valueChanged, &chart, [this] { showStep(); });
}

double LineDrawing::fraction() const
{
    if (m_animation.state() != QVariantAnimation::Stopped) {
        return m_animation.currentValue().toDouble();
    }
    return m_hasBegun || !m_isAnimated ? 1 : 0;
}

/// From the first painting on, not from the first showing: until then nobody has seen the chart.
void LineDrawing::begin()
{
    if (m_isAnimated && !m_hasBegun && m_chart.isVisible()) {
        m_hasBegun = true;
        if (hasAnimations(m_chart)) {
            m_animation.start();
        }
    }
}

void LineDrawing::reset()
{
    m_animation.stop();
    m_hasBegun = false;
}

/// A window that is covered or on another workspace is not exposed, though it is visible.
void LineDrawing::showStep()
{
    const QWindow* handle = m_chart.window()->windowHandle();
    if (handle == nullptr || !handle->isExposed() || m_chart.visibleRegion().isEmpty()) {
        finish();
    }
    m_chart.update();
}

} // namespace aerolith
