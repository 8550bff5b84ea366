#include "ui/common/EaseInOut.h"

#include <QEasingCurve>
#include <QPointF>

namespace aerolith {

const QEasingCurve& easeInOut()
{
    static const QEasingCurve curve = [] {
        QEasingCurve bezier(QEasingCurve::BezierSpline);
        bezier.addCubicBezierSegment({0.42, 0}, {0.58, 1}, {1, 1});
        return bezier;
    }();
    return curve;
}

} // namespace aerolith
