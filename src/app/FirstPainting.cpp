#include "app/FirstPainting.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace aerolith {

namespace {

class FirstPainting : public QObject
{
public:
    FirstPainting(QObject& receiver, std::function<void()> task) : QObject(&receiver), m_task(std::move(task))
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, this, [this] {
                m_task();
                deleteLater();
            });
        }
        return false;
    }

private:
    std::function<void()> m_task;
};

} // namespace

void afterFirstPainting(QWidget& window, QObject& receiver, std::function<void()> task)
{
    window.installEventFilter(new FirstPainting(receiver, std::move(task)));
}

} // namespace aerolith
