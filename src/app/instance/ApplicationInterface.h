#pragma once

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace aerolith {

/// The interface by which launchers and a second start reach the program that runs. The names are the
/// interface's.
class ApplicationInterface : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// `activate` is called with the platform data of every call that is to show the window.
    ApplicationInterface(QObject* parent, std::function<void(const QVariantMap& platformData)> activate);

public Q_SLOTS:
    void Activate(const QVariantMap& platformData);

    /// The program opens no files: its window is shown.
    void Open(const QStringList& uris, const QVariantMap& platformData);

    /// The program announces no actions: nothing happens.
    void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData);

private:
    std::function<void(const QVariantMap&)> m_activate;
};

} // namespace aerolith
