#include "app/PortalSettings.h"

#include "app/FirstPainting.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMap>
#include <QWidget>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

using Settings = QMap<QString, QVariantMap>;

constexpr auto service = "org.freedesktop.portal.Desktop"_L1;
constexpr auto path = "/org/freedesktop/portal/desktop"_L1;
constexpr auto interface = "org.freedesktop.portal.Settings"_L1;

constexpr int firstLimit = 250; // ms
constexpr int usualLimit = -1;  // the bus's own

QDBusPendingCall readAll(bool startPortal, int limit)
{
    auto request = QDBusMessage::createMethodCall(service, path, interface, u"ReadAll"_s);
    request.setArguments({QStringList{PortalSettings::standard, PortalSettings::gnome}});
    request.setAutoStartService(startPortal);
    return QDBusConnection::sessionBus().asyncCall(request, limit);
}

} // namespace

PortalSettings::PortalSettings() : m_first(readAll(false, firstLimit)) {}

void PortalSettings::tellFirst()
{
    m_first.waitForFinished();
    handleAnswer(m_first);
}

void PortalSettings::followAfterPainting(QWidget& window)
{
    afterFirstPainting(window, *this, [this] { follow(); });
}

void PortalSettings::follow()
{
    QDBusConnection::sessionBus().connect(service, path, interface, u"SettingChanged"_s, this,
                                          SLOT(handleChange(QDBusMessage)));
    auto* answer = new QDBusPendingCallWatcher(readAll(true, usualLimit), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        handleAnswer(*answer);
        answer->deleteLater();
    });
}

void PortalSettings::handleAnswer(const QDBusPendingCall& answer)
{
    // Qt would read any other type with no look at its ends.
    if (answer.isError() || answer.reply().signature() != "a{sa{sv}}"_L1) {
        return;
    }
    const auto settings = qdbus_cast<Settings>(answer.reply().arguments().value(0));
    for (const auto& group : {standard, gnome}) {
        const QVariantMap values = settings.value(group);
        for (auto setting = values.cbegin(); setting != values.cend(); ++setting) {
            Q_EMIT told(group, setting.key(), setting.value());
        }
    }
}

void PortalSettings::handleChange(const QDBusMessage& signal)
{
    const QVariantList arguments = signal.arguments();
    if (signal.signature() == "ssv"_L1) {
        Q_EMIT told(arguments[0].toString(), arguments[1].toString(),
                    arguments[2].value<QDBusVariant>().variant());
    }
}

} // namespace aerolith
