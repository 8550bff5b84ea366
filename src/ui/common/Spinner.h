#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace aerolith {

/// Says that something is under way, for how long nobody knows. Stands still while it cannot be seen, and
/// where the user's style has no animations.
class Spinner : public QWidget
{
public:
    explicit Spinner(QWidget* parent = nullptr);

    [[nodiscard]] bool isTurning() const { return m_timer.isActive(); }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QBasicTimer m_timer;
    /// The spoke that is drawn darkest.
    int m_head = 0;
};

} // namespace aerolith
