#include "ui/common/OncePerTurn.h"

#include <utility>

namespace aerolith {

OncePerTurn::OncePerTurn(std::function<void()> update) : m_update(std::move(update)) {}

void OncePerTurn::request()
{
    if (std::exchange(m_requested, true)) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_requested = false;
            m_update();
        },
        Qt::QueuedConnection);
}

} // namespace aerolith
