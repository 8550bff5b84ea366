#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace aerolith {

/// Whether the desktop offers a place for icons: as a StatusNotifierItem, of which the session bus tells, or
/// in an X11 tray. It may come after the program, at login above all, and is learned from events: nothing
/// polls. GUI thread.
class TrayHost : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit TrayHost(QDBusConnection bus = QDBusConnection::sessionBus());
    ~TrayHost() override;

    /// Does not wait for the session bus: what that knows is known once it has answered.
    [[nodiscard]] bool isThere() const;

Q_SIGNALS:
    /// May be said more than once.
    void appeared();

private Q_SLOTS:
    void askWatcher();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    bool m_hasNotifierHost = false;
    /// The X11 atom MANAGER; 0 where the program is no X11 client.
    quint32 m_managerAtom = 0;
};

} // namespace aerolith
