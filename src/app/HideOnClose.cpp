#include "app/HideOnClose.h"

#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

#include <utility>

namespace aerolith {

HideOnClose::HideOnClose(QWidget& window, std::function<bool()> comesBack)
    : m_window(window), m_comesBack(std::move(comesBack))
{
    m_window.installEventFilter(this);
}

bool HideOnClose::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        showDialogs();
    }
    if (event->type() != QEvent::Close || qGuiApp->isSavingSession() || !m_comesBack()) {
        return false;
    }
    event->ignore();
    hide();
    return true;
}

void HideOnClose::hide()
{
    for (QDialog* dialog : m_window.findChildren<QDialog*>()) {
        if (dialog->isVisible()) {
            dialog->hide();
            m_dialogs.append(dialog);
        }
    }
    m_window.hide();
}

void HideOnClose::showDialogs()
{
    for (const auto& dialog : std::exchange(m_dialogs, {})) {
        if (dialog != nullptr) {
            // After the window, which is about to be shown.
            QMetaObject::invokeMethod(dialog.data(), &QWidget::show, Qt::QueuedConnection);
        }
    }
}

} // namespace aerolith
