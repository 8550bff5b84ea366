#include "platform/linux/networkmanager/PrivateBus.h"

#include <QFile>

namespace aerolith {

using namespace Qt::StringLiterals;

PrivateBus::PrivateBus()
{
    const auto configurationPath = m_directory.filePath(u"bus.conf"_s);
    QFile configuration(configurationPath);
    if (!configuration.open(QIODevice::WriteOnly)) {
        return;
    }
    configuration.write(
        u"<busconfig><listen>unix:dir=%1</listen><policy context='default'>"
        "<allow send_destination='*'/><allow receive_sender='*'/><allow own='*'/></policy></busconfig>"_s
            .arg(m_directory.path())
            .toUtf8());
    configuration.close();
    m_daemon.start(QStringLiteral(DBUS_DAEMON),
                   {u"--nofork"_s, u"--print-address"_s, u"--config-file=%1"_s.arg(configurationPath)});
    if (m_daemon.waitForReadyRead()) {
        m_address = QString::fromUtf8(m_daemon.readLine().trimmed());
    }
}

PrivateBus::~PrivateBus()
{
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

} // namespace aerolith
