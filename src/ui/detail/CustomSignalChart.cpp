#include "ui/detail/CustomSignalChart.h"

#include "ui/common/AccessibleRole.h"
#include "ui/common/Animations.h"
#include "ui/common/EaseInOut.h"
#include "ui/common/NetworkTexts.h"
#include "ui/common/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualWidth = 250;
constexpr int fullHeight = 250;
constexpr int miniHeight = 50;
constexpr int drawingMilliseconds = 1500;
constexpr QMarginsF focusDistance{9.5, 9.5, 9.5, 9.5};
constexpr double focusRadius = 4;

/// Samples are never changed, only added and dropped.
bool isSame(const SignalHistoryList& a, const SignalHistoryList& b)
{
    return a.size() == b.size() &&
           (a.isEmpty() || (a.first().id == b.first().id && a.last().id == b.last().id));
}

} // namespace

CustomSignalChart::CustomSignalChart(const SignalChartParameters& parameters, QWidget* parent)
    : QWidget(parent)
    , m_parameters(parameters)
    , m_drawing(this)
    , m_hover([this](const QUuid& id) { repaintDot(id); }, this)
{
    setAccessibleRole(*this, QAccessible::Chart);
    nameForAssistance();
    const bool isFull = !parameters.showMiniVersion;
    setMouseTracking(isFull);
    setFocusPolicy(isFull ? Qt::TabFocus : Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, isFull ? QSizePolicy::Fixed : QSizePolicy::Preferred);

    m_drawing.setObjectName(u"drawing"_s);
    m_drawing.setStartValue(0.0);
    m_drawing.setEndValue(1.0);
    m_drawing.setDuration(drawingMilliseconds);
    m_drawing.setEasingCurve(easeInOut());
    connect(&m_drawing, &QVariantAnimation::valueChanged, this, &CustomSignalChart::finishUnlessSeen);
}

void CustomSignalChart::showHistory(const SignalHistoryList& history)
{
    if (!isSame(history, m_history)) {
        m_history = history;
        nameForAssistance();
        update();
    }
}

void CustomSignalChart::startOver()
{
    m_drawing.stop();
    m_animateChart = false;
    hover({});
    m_hover.settle();
    update();
}

QSize CustomSignalChart::sizeHint() const
{
    const QMargins margins = contentsMargins();
    // The values along its edge are text.
    const int height = m_parameters.showMiniVersion ? miniHeight : Theme::scaledToText(fullHeight);
    return {usualWidth, margins.top() + height + margins.bottom()};
}

QSize CustomSignalChart::minimumSizeHint() const
{
    return {0, m_parameters.showMiniVersion ? 0 : sizeHint().height()};
}

// The signal line that draws itself.

double CustomSignalChart::drawnFraction() const
{
    if (m_drawing.state() != QVariantAnimation::Stopped) {
        return m_drawing.currentValue().toDouble();
    }
    return m_animateChart || !m_parameters.animate ? 1 : 0;
}

/// From the first painting on, not from the first showing: until then nobody has seen the chart.
void CustomSignalChart::beginDrawing()
{
    if (m_parameters.animate && !m_animateChart && isVisible()) {
        m_animateChart = true;
        if (hasAnimations(*this)) {
            m_drawing.start();
        }
    }
}

/// A window that is covered or on another workspace is not exposed, though it is visible.
void CustomSignalChart::finishUnlessSeen()
{
    const QWindow* handle = window()->windowHandle();
    if (handle == nullptr || !handle->isExposed() || visibleRegion().isEmpty()) {
        m_drawing.stop();
    }
    update();
}

void CustomSignalChart::hideEvent(QHideEvent* event)
{
    m_drawing.stop();
    m_hover.settle();
    QWidget::hideEvent(event);
}

// Dots.

SignalChartGeometry CustomSignalChart::geometry() const
{
    return {m_history, contentsRect().size()};
}

HoverableDot CustomSignalChart::dot(const SignalChartGeometry& geometry, qsizetype index) const
{
    const SignalHistory& sample = m_history[index];
    return {.position = geometry.signalPoint(index),
            .data = sample,
            .isHovered = sample.id == hoveredPointId(),
            .growth = m_hover.growth(sample.id),
            .totalWidth = static_cast<double>(contentsRect().width())};
}

QList<HoverableDot> CustomSignalChart::dots() const
{
    QList<HoverableDot> dots;
    if (!m_parameters.showMiniVersion) {
        const SignalChartGeometry places = geometry();
        for (qsizetype i = 0; i < m_history.size(); ++i) {
            dots.append(dot(places, i));
        }
    }
    return dots;
}

qsizetype CustomSignalChart::indexOf(const QUuid& id) const
{
    const auto* const found = std::find_if(m_history.begin(), m_history.end(),
                                           [&id](const SignalHistory& sample) { return sample.id == id; });
    return found == m_history.end() ? -1 : found - m_history.begin();
}

qsizetype CustomSignalChart::hoveredIndex() const
{
    return hoveredPointId() ? indexOf(*hoveredPointId()) : -1;
}

void CustomSignalChart::repaintDot(const QUuid& id)
{
    if (const qsizetype index = indexOf(id); index >= 0) {
        const HoverableDot changed = dot(geometry(), index);
        // One more, for smooth edges.
        update(changed.extent(font())
                   .translated(contentsRect().topLeft())
                   .adjusted(-1, -1, 1, 1)
                   .toAlignedRect());
    }
}

void CustomSignalChart::hover(const std::optional<QUuid>& id)
{
    if (id == hoveredPointId()) {
        return;
    }
    m_hover.hover(id);
    // A chart that is hidden loses the focus, and with it what was hovered, only afterwards.
    if (!hasAnimations(*this) || !isVisible()) {
        m_hover.settle();
    }
    nameForAssistance();
}

/// Assistive technology reads out what has the focus when its name changes.
void CustomSignalChart::nameForAssistance()
{
    QStringList name{tr("Signal History")};
    if (const qsizetype hovered = hoveredIndex(); hovered >= 0) {
        name.append(dot(geometry(), hovered).readOut());
    }
    setAccessibleName(name.join(listSeparator()));
}

void CustomSignalChart::hoverSample(qsizetype index)
{
    if (!m_history.isEmpty()) {
        hover(m_history[std::clamp<qsizetype>(index, 0, m_history.size() - 1)].id);
    }
}

void CustomSignalChart::hoverAt(const std::optional<QPointF>& pointer)
{
    const QList<HoverableDot> all = dots();
    // Where dots overlap, the pointer is on the one that is seen.
    const auto topmost = std::find_if(all.crbegin(), all.crend(), [&](const HoverableDot& dot) {
        return pointer && dot.target().contains(*pointer - contentsRect().topLeft());
    });
    hover(topmost == all.crend() ? std::nullopt : std::optional(topmost->data.id));
}

void CustomSignalChart::updateHover()
{
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    const bool isOver = underMouse() && visibleRegion().contains(pointer);
    hoverAt(isOver ? std::optional<QPointF>(pointer) : std::nullopt);
}

void CustomSignalChart::mouseMoveEvent(QMouseEvent* event)
{
    hoverAt(event->position());
}

void CustomSignalChart::leaveEvent(QEvent* event)
{
    hover({});
    QWidget::leaveEvent(event);
}

void CustomSignalChart::keyPressEvent(QKeyEvent* event)
{
    const qsizetype last = m_history.size() - 1;
    const qsizetype hovered = hoveredIndex();
    switch (event->key()) {
    case Qt::Key_Left:
        return hoverSample(hovered < 0 ? last : hovered - 1);
    case Qt::Key_Right:
        return hoverSample(hovered < 0 ? last : hovered + 1);
    case Qt::Key_Home:
        return hoverSample(0);
    case Qt::Key_End:
        return hoverSample(last);
    default:
        QWidget::keyPressEvent(event);
    }
}

/// Reached by the Tab key the chart reads out the latest sample, which shows where the focus is as well.
void CustomSignalChart::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        hoverSample(m_history.size() - 1);
    }
}

void CustomSignalChart::focusOutEvent(QFocusEvent* event)
{
    // A pointer goes on reading in a window that is not active.
    updateHover();
    QWidget::focusOutEvent(event);
}

void CustomSignalChart::paintEvent(QPaintEvent*)
{
    beginDrawing();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Time runs from left to right and numbers read that way in every language.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.translate(contentsRect().topLeft());
    SignalChartLayers{.parameters = m_parameters,
                      .history = m_history,
                      .size = contentsRect().size(),
                      .palette = palette(),
                      .font = font(),
                      .label = palette().color(foregroundRole())}
        .paint(painter, drawnFraction(), dots());
    if (hasFocus()) {
        paintFocus(painter);
    }
}

/// A frame alone: many styles tint what has the focus, and a chart is too large for that.
void CustomSignalChart::paintFocus(QPainter& painter) const
{
    painter.setPen(QPen(Theme::accent(palette()), 1));
    painter.setBrush(Qt::NoBrush);
    const QRectF frame = QRectF({0, 0}, contentsRect().size()).marginsAdded(focusDistance);
    painter.drawRoundedRect(frame, focusRadius, focusRadius);
}

} // namespace aerolith
