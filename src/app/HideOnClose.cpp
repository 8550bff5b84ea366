#include "app/HideOnClose.h"

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
    if (event->type() != QEvent::Close || qGuiApp->isSavingSession() || !m_comesBack()) {
        return false;
    }
    event->ignore();
    m_window.hide();
    return true;
}

} // namespace aerolith
