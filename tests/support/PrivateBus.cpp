#include "support/PrivateBus.h"

#include <QFile>

namespace aerolith {

using namespace Qt::StringLiterals;

PrivateBus::PrivateBus(const QString& refusedName)
    : m_address(u"unix:path="_s + m_directory.filePath(u"bus"_s))
{
    QFile configuration(m_directory.filePath(u"bus.conf"_s));
    if (!configuration.open(QIODevice::WriteOnly)) {
        return;
    }
    const auto refusal = refusedName.isEmpty() ? QString() : u"<deny own='%1'/>"_s.arg(refusedName);
    configuration.write(
        u"<busconfig><listen>%1</listen><policy context='default'>"
        "<allow send_destination='*'/><allow receive_sender='*'/><allow own='*'/>%2</policy></busconfig>"_s
            .arg(m_address, refusal)
            .toUtf8());
    configuration.close();
    begin();
}

PrivateBus::~PrivateBus()
{
    end();
}

void PrivateBus::begin()
{
    m_daemon.start(QStringLiteral(DBUS_DAEMON), {u"--nofork"_s, u"--print-address"_s,
                                                 u"--config-file="_s + m_directory.filePath(u"bus.conf"_s)});
    // It tells its address once it listens there.
    m_daemon.waitForReadyRead();
}

void PrivateBus::end()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
    QFile::remove(m_directory.filePath(u"bus"_s));
}

} // namespace aerolith
