#pragma once

#include <QCheckBox>

namespace aerolith {

/// A small switch behind its title. On is its checked state.
class Switch : public QCheckBox
{
public:
    /// Around what is drawn, for the focus ring; device-independent pixels. What aligns the switch with
    /// others leaves so much less space.
    static constexpr int margin = 5;

    explicit Switch(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    [[nodiscard]] bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent* event) override;

private:
    /// The switch proper, on the trailing side.
    [[nodiscard]] QRectF track() const;
};

} // namespace aerolith
