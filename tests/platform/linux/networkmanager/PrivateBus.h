#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace aerolith {

/// A message bus of the test's own, ended with the object.
class PrivateBus
{
public:
    PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    /// Empty when the bus did not start.
    [[nodiscard]] const QString& address() const { return m_address; }

private:
    QTemporaryDir m_directory;
    QProcess m_daemon;
    QString m_address;
};

} // namespace aerolith
