#pragma once

#include <QWidget>

namespace aerolith {

/// What the chart below it is, and which colour is what.
class ChartLegend : public QWidget
{
public:
    explicit ChartLegend(QWidget* parent = nullptr);
};

} // namespace aerolith
