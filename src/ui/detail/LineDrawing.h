#pragma once

#include <QVariantAnimation>

class QWidget;

namespace aerolith {

/// The signal line of a chart draws itself, once, when the chart is first seen. What nobody can see is whole
/// at once. GUI thread.
class LineDrawing
{
public:
    /// The chart, which is painted anew at every step, outlives this object or owns it. Without animation the
    /// line is whole from the start.
    LineDrawing(QWidget& chart, bool isAnimated);

    /// The part of the line that is drawn: 0, before it begins, to 1.
    [[nodiscard]] double fraction() const;

    /// The chart is painted: the line begins to draw itself unless it has before.
    void begin();

    /// The line is whole, if it has begun.
    void finish() { m_animation.stop(); }

    /// The line is to begin once more.
    void reset();

private:
    void showStep();

    QWidget& m_chart;
    bool m_isAnimated;
    bool m_hasBegun = false;
    QVariantAnimation m_animation;
};

} // namespace aerolith
