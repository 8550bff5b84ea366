#include "ui/detail/ChartDots.h"

#include <algorithm>

namespace aerolith {

ChartDots::ChartDots(const SignalHistoryList& history, const QSizeF& size, const DotHover& hover)
    : m_history(history), m_geometry(history, size), m_width(size.width()), m_hover(hover)
{
}

QList<HoverableDot> ChartDots::all() const
{
    QList<HoverableDot> dots;
    for (qsizetype i = 0; i < m_history.size(); ++i) {
        dots.append(dot(i));
    }
    return dots;
}

HoverableDot ChartDots::dot(qsizetype index) const
{
    const SignalHistory& sample = m_history[index];
    return {.position = m_geometry.signalPoint(index),
            .data = sample,
            .isHovered = sample.id == m_hover.hoveredPointId(),
            .growth = m_hover.growth(sample.id),
            .totalWidth = m_width};
}

qsizetype ChartDots::indexOf(const QUuid& id) const
{
    const auto* const found = std::find_if(m_history.begin(), m_history.end(),
                                           [&id](const SignalHistory& sample) { return sample.id == id; });
    return found == m_history.end() ? -1 : found - m_history.begin();
}

std::optional<QUuid> ChartDots::below(const QPointF& position) const
{
    for (qsizetype i = m_history.size() - 1; i >= 0; --i) {
        if (dot(i).target().contains(position)) {
            return m_history[i].id;
        }
    }
    return {};
}

} // namespace aerolith
