#pragma once

#include <QObject>

#include <functional>

namespace aerolith {

/// Runs one function at most once in a turn of the event loop, however often it is asked for: what a view
/// does about published changes. Main thread.
class OncePerTurn : public QObject
{
public:
    explicit OncePerTurn(std::function<void()> update);

    /// The function runs on a later turn; not at all if this object is gone by then.
    void request();

private:
    std::function<void()> m_update;
    bool m_requested = false;
};

} // namespace aerolith
