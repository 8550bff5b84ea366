#pragma once

#include "ui/menubar/StatusItem.h"
#include "ui/menubar/TrayHost.h"

#include <QSystemTrayIcon>

#include <optional>

namespace aerolith {

/// The status item as an icon in the desktop's tray, as soon as there is one.
class TrayStatusItem : public StatusItem
{
    Q_OBJECT

public:
    TrayStatusItem();

    [[nodiscard]] bool hasButton() const override;

    void setImage(const QIcon& image, const QString& accessibilityDescription) override;

    [[nodiscard]] QRect frame() const override { return m_icon ? m_icon->geometry() : QRect(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void lookForTray();
    void makeIcon();

    TrayHost m_host;
    /// Made when there is a tray, not before: Qt settles on a kind of tray with its first icon, for good. It
    /// follows one that begins anew by itself.
    std::optional<QSystemTrayIcon> m_icon;
};

} // namespace aerolith
