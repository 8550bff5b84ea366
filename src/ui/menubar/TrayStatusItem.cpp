#include "ui/menubar/TrayStatusItem.h"

#include <QEvent>
#include <QGuiApplication>

namespace aerolith {

TrayStatusItem::TrayStatusItem()
{
    connect(&m_host, &TrayHost::appeared, this, &TrayStatusItem::lookForTray, Qt::QueuedConnection);
    if (m_host.isThere()) {
        makeIcon();
    }
}

bool TrayStatusItem::hasButton() const
{
    return m_icon && m_host.isThere();
}

void TrayStatusItem::lookForTray()
{
    if (m_icon || !m_host.isThere()) {
        return;
    }
    makeIcon();
    Q_EMIT buttonAppeared();
}

void TrayStatusItem::makeIcon()
{
    m_icon.emplace();
    qGuiApp->installEventFilter(this);
    connect(&*m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::Context) {
            Q_EMIT pressed();
        }
    });
}

/// The image has been handed over in the palette's colours: a bar does not ask for it again by itself.
bool TrayStatusItem::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qGuiApp) {
        m_icon->setIcon(m_icon->icon());
    }
    return false;
}

void TrayStatusItem::setImage(const QIcon& image, const QString& accessibilityDescription)
{
    m_icon->setIcon(image);
    // The only words of an icon that trays hand on to assistive technology.
    m_icon->setToolTip(accessibilityDescription);
    m_icon->show();
}

} // namespace aerolith
