#pragma once

#include <QPointer>
#include <QWindow>

namespace aerolith {

/// While it exists the program waits for the machine: the pointer says so, and an open popup lets go of the
/// desktop's pointer and keyboard, so that everything else can be used, above all a question of the desktop
/// about this very wait. What the user has typed and pressed into the program meanwhile was meant for what
/// stood there then, and is forgotten when it ends. Main thread.
class WaitState
{
public:
    WaitState();
    WaitState(const WaitState&) = delete;
    WaitState& operator=(const WaitState&) = delete;
    ~WaitState();

    [[nodiscard]] static bool isWaiting();

private:
    /// The popup, if there is one.
    QPointer<QWindow> m_popup;
};

} // namespace aerolith
