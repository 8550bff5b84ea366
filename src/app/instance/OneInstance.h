#pragma once

#include "app/instance/StartupToken.h"
#include "platform/Result.h"

#include <QDBusConnection>
#include <QObject>

namespace aerolith {

/// The program as one instance in each user session, known by its name on the session bus. What it is asked
/// over the bus reaches it on the event loop of the main thread.
class OneInstance : public QObject
{
    Q_OBJECT

public:
    enum class Role
    {
        /// This process is the instance.
        first,
        /// Another one is, and has been asked to show its window: this process is not needed.
        second
    };

    explicit OneInstance(QDBusConnection bus = QDBusConnection::sessionBus());
    ~OneInstance() override;

    /// Takes the name, or hands `token` to who has it. Of several that start at the same moment one is first.
    /// The error says why it is neither: there is no session bus, it gives nobody the name, or who has the
    /// name does not answer; this process then does without the name. Blocks until the bus and the other one
    /// have answered; the latter is given five seconds. To be called once.
    [[nodiscard]] Result<Role> claim(const StartupToken& token);

    /// Whether starting the program again shows this process's window.
    [[nodiscard]] bool isFirst() const { return m_isFirst; }

    /// Leaves the name to the next start.
    void release();

Q_SIGNALS:
    /// The user has started the program again.
    void startedAgain(const StartupToken& token);

private:
    /// Whether nobody else has it.
    [[nodiscard]] Result<bool> takeName();
    [[nodiscard]] Failure activateOther(const StartupToken& token, int milliseconds) const;

    QDBusConnection m_bus;
    bool m_isFirst = false;
};

} // namespace aerolith
