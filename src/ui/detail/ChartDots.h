#pragma once

#include "ui/detail/DotHover.h"
#include "ui/detail/HoverableDot.h"
#include "ui/detail/SignalChartGeometry.h"

#include <QList>

#include <optional>

namespace aerolith {

/// The dots of a chart whose rectangle is of `size`, one for each sample, as they are at the moment. In the
/// rectangle's coordinates.
class ChartDots
{
public:
    /// The hover outlives this object.
    ChartDots(const SignalHistoryList& history, const QSizeF& size, const DotHover& hover);

    /// In history order.
    [[nodiscard]] QList<HoverableDot> all() const;

    [[nodiscard]] HoverableDot dot(qsizetype index) const;

    /// Of the sample; below 0 when there is none.
    [[nodiscard]] qsizetype indexOf(const QUuid& id) const;

    /// The sample whose dot a pointer at `position` rests on. Where dots overlap, it is the one that is seen.
    [[nodiscard]] std::optional<QUuid> below(const QPointF& position) const;

private:
    SignalHistoryList m_history;
    SignalChartGeometry m_geometry;
    double m_width;
    const DotHover& m_hover;
};

} // namespace aerolith
