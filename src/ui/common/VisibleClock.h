#pragma once

#include "platform/Queues.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QWidget;
class QWindow;

namespace aerolith {

/// The clock of a widget's endless animation. It starts from 0 when the widget is shown, and stands still,
/// with no timer running, while nobody can see the widget: minimised, hidden, or covered as far as the window
/// system tells. Where the desktop asks for no animations it stays at 0. Where frames take long there are
/// fewer of them: two thirds of the thread's time are left to everything else. GUI thread.
class VisibleClock : public QObject
{
public:
    /// Slow movements look smooth at thirty frames a second, for half the work of sixty.
    static constexpr std::chrono::milliseconds smooth{33};

    /// `frame` runs whenever the time has moved. The widget outlives this object, or owns it.
    VisibleClock(QWidget& widget, std::function<void()> frame, std::chrono::milliseconds interval = smooth);

    /// From the next frame on.
    void setInterval(std::chrono::milliseconds interval) { m_interval = interval; }

    /// How long the widget has been seen since it was shown.
    [[nodiscard]] Seconds time() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isRunning() const { return m_running.isValid(); }

    void widgetShown(bool anew);
    void update();
    void stop();
    void showFrame();
    [[nodiscard]] bool canBeSeen() const;

    QWidget& m_widget;
    /// The window that tells whether it is exposed.
    QPointer<QWindow> m_window;
    bool m_isShown;
    std::function<void()> m_frame;
    std::chrono::milliseconds m_interval;
    /// To the next frame, or to the end of this one.
    QTimer m_timer;
    QElapsedTimer m_frameBegan;
    /// Valid while the time moves.
    QElapsedTimer m_running;
    /// Of the earlier runs since the widget was shown.
    Seconds m_elapsed{0};
};

} // namespace aerolith
