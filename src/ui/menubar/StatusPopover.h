#pragma once

#include <QElapsedTimer>
#include <QRect>
#include <QWidget>

#include <functional>
#include <memory>

namespace aerolith {

/// A transient window under an icon: it closes when the user turns to anything outside of it, presses Escape,
/// or is asked something by a dialog. Made at its first opening. Main thread.
class StatusPopover
{
public:
    /// Makes what is in it, once.
    explicit StatusPopover(std::function<QWidget*()> makeContent);

    /// Also true for the press of a button that has just closed it as a press outside.
    [[nodiscard]] bool isShown() const;

    /// By the icon; where it is not known (an empty rectangle) by the pointer or in a corner.
    void show(const QRect& icon);

    void close();

private:
    class Window;

    std::function<QWidget*()> m_makeContent;
    std::shared_ptr<Window> m_window;
};

} // namespace aerolith
