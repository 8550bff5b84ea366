#pragma once

#include "ui/detail/NetworkDetails.h"

#include <QList>
#include <QWidget>

class QVBoxLayout;

namespace aerolith {

class InfoRowWithTooltip;

/// A titled group of facts.
class DetailSection : public QWidget
{
public:
    /// Left and right of everything, device-independent pixels.
    static constexpr int sidePadding = 20;

    explicit DetailSection(const QString& title, QWidget* parent = nullptr);

    /// Between the title and the rows, from edge to edge.
    void setHeader(QWidget* header);

    /// The rows that exist are kept and say what has changed.
    void showDetails(const NetworkDetailList& details);

private:
    QVBoxLayout* m_stack;
    QVBoxLayout* m_rowStack;
    QList<InfoRowWithTooltip*> m_rows;
};

} // namespace aerolith
