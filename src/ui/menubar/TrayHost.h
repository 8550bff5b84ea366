#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusServiceWatcher>
#include <QObject>

namespace aerolith {

/// Whether the desktop offers a place for icons: as a StatusNotifierItem, announced on the session bus, or in
/// an X11 tray. It may come after the program, at login above all, and is learned from events: nothing polls.
/// GUI thread.
class TrayHost : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    TrayHost();
    ~TrayHost() override;

    [[nodiscard]] static bool isThere();

Q_SIGNALS:
    /// May be said more than once.
    void appeared();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    QDBusServiceWatcher m_watcher;
    /// The X11 atom MANAGER; 0 where the program is no X11 client.
    quint32 m_managerAtom = 0;
};

} // namespace aerolith
