#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace aerolith {

/// A message bus of the test's own, running from the object's beginning to its end.
class PrivateBus
{
public:
    /// One that gives everybody every name, but for this one.
    explicit PrivateBus(const QString& refusedName = {});
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    /// Where it is while it runs.
    [[nodiscard]] const QString& address() const { return m_address; }

    /// Ends it as a process that is killed, and begins it again at the same address.
    void end();
    void begin();

private:
    QTemporaryDir m_directory;
    QProcess m_daemon;
    QString m_address;
};

} // namespace aerolith
