#pragma once

#include "ui/common/Theme.h"

#include <QLabel>

namespace aerolith {

/// Plain text in a quieter colour than its surroundings, readable on them in light and dark.
class SecondaryLabel : public QLabel
{
public:
    /// Text size in device-independent pixels.
    explicit SecondaryLabel(int pixelSize, QWidget* parent = nullptr);

    explicit SecondaryLabel(TextStyle style, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace aerolith
