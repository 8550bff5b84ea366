#pragma once

#include "ui/detail/ChartDots.h"
#include "ui/detail/DotHover.h"
#include "ui/detail/LineDrawing.h"
#include "ui/detail/SignalChartLayers.h"

#include <QWidget>

#include <optional>

namespace aerolith {

/// The signal history of one access point. In the full form each sample has a dot that reads it out while the
/// pointer rests on it, whether or not the window is active; with the keyboard's focus, the arrow keys, Home
/// and End go from sample to sample.
///
/// The chart's rectangle is contentsRect(): 250 high in the full form, as high as it is given in the compact
/// one. Noise beyond the scale and read-outs near an edge reach past it; a widget cannot draw outside of
/// itself, so they have the contents margins, which whoever lays the chart out makes as wide as the empty
/// space around it. What goes further would be drawn over other things, and ends there.
class CustomSignalChart : public QWidget
{
    Q_OBJECT

public:
    explicit CustomSignalChart(const SignalChartParameters& parameters, QWidget* parent = nullptr);

    /// The samples, now. Hover and a drawing that has begun or finished stay as they are.
    void showHistory(const SignalHistoryList& history);

    /// As a new chart, for another access point: nothing is hovered, and the line draws itself once more.
    void startOver();

    /// The pointer stands still while the chart moves below it.
    void updateHover();

    [[nodiscard]] const std::optional<QUuid>& hoveredPointId() const { return m_hover.hoveredPointId(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] ChartDots dots() const;
    /// Below 0 when there is none.
    [[nodiscard]] qsizetype hoveredIndex() const;
    void hover(const std::optional<QUuid>& id);
    void hoverSample(qsizetype index);
    /// `pointer` in the widget's coordinates.
    void hoverAt(const QPointF& pointer);
    void nameForAssistance();
    void repaintDot(const QUuid& id);

    void paintFocus(QPainter& painter) const;

    SignalChartParameters m_parameters;
    SignalHistoryList m_history;
    LineDrawing m_drawing;
    DotHover m_hover;
};

} // namespace aerolith
