#pragma once

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QVariant>

class QWidget;

namespace aerolith {

/// What the desktop's portal tells of its user's wishes. A desktop without a portal is content with how
/// things are. Main thread.
class PortalSettings : public QObject
{
    Q_OBJECT

public:
    /// Asks a portal that runs already, and starts none.
    PortalSettings();

    /// Waits for the answer to that, 250 ms after the question at most, and tells it: for before the first
    /// window is made.
    void tellFirst();

    /// Asks once more after the first painting of the window, which does not wait for it, starting the portal
    /// where that does not run; from then on tells of every change.
    void followAfterPainting(QWidget& window);

    /// The groups that are asked for.
    static constexpr QLatin1StringView standard{"org.freedesktop.appearance"};
    static constexpr QLatin1StringView gnome{"org.gnome.desktop.interface"};

Q_SIGNALS:
    /// A setting as it is now, changed or not.
    void told(const QString& group, const QString& key, const QVariant& value);

private Q_SLOTS:
    void handleChange(const QDBusMessage& signal);

private:
    void follow();
    void handleAnswer(const QDBusPendingCall& answer);

    QDBusPendingCall m_first;
};

} // namespace aerolith
