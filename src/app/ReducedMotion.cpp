#include "app/ReducedMotion.h"

#include "app/FirstPainting.h"
#include "app/ProgramStyle.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QWidget>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

using Settings = QMap<QString, QVariantMap>;

constexpr auto service = "org.freedesktop.portal.Desktop"_L1;
constexpr auto path = "/org/freedesktop/portal/desktop"_L1;
constexpr auto interface = "org.freedesktop.portal.Settings"_L1;

constexpr auto standard = "org.freedesktop.appearance"_L1;
constexpr auto gnome = "org.gnome.desktop.interface"_L1;

// Another style, which a desktop may put in its place, moves as that desktop wants it.
void setStill(bool still)
{
    if (auto* style = dynamic_cast<ProgramStyle*>(QApplication::style())) {
        style->setStill(still);
    }
}

} // namespace

std::optional<bool> reducesMotion(const QString& group, const QString& key, const QVariant& value)
{
    if (group == standard && key == "reduced-motion"_L1) {
        return value.toUInt() == 1;
    }
    if (group == gnome && key == "enable-animations"_L1) {
        return !value.toBool();
    }
    return {};
}

ReducedMotion::ReducedMotion(QWidget& window) : QObject(&window)
{
    afterFirstPainting(window, *this, [this] { ask(); });
}

void ReducedMotion::ask()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, u"SettingChanged"_s, this, SLOT(handleChange(QDBusMessage)));
    auto request = QDBusMessage::createMethodCall(service, path, interface, u"ReadAll"_s);
    request.setArguments({QStringList{standard, gnome}});
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(request), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        handleAnswer(*answer);
        answer->deleteLater();
    });
}

/// A desktop without a portal is content with how things are.
void ReducedMotion::handleAnswer(const QDBusPendingCallWatcher& answer)
{
    // Qt would read any other type with no look at its ends.
    if (answer.isError() || answer.reply().signature() != "a{sa{sv}}"_L1) {
        return;
    }
    const auto settings = qdbus_cast<Settings>(answer.reply().arguments().value(0));
    for (const auto& group : {standard, gnome}) {
        const QVariantMap values = settings.value(group);
        for (auto setting = values.cbegin(); setting != values.cend(); ++setting) {
            follow(group, setting.key(), setting.value());
        }
    }
}

void ReducedMotion::follow(const QString& group, const QString& key, const QVariant& value)
{
    if (const auto reduces = reducesMotion(group, key, value)) {
        m_wishes[group] = *reduces;
        setStill(m_wishes.values().contains(true));
    }
}

void ReducedMotion::handleChange(const QDBusMessage& signal)
{
    const QVariantList arguments = signal.arguments();
    if (signal.signature() == "ssv"_L1) {
        follow(arguments[0].toString(), arguments[1].toString(),
               arguments[2].value<QDBusVariant>().variant());
    }
}

} // namespace aerolith
