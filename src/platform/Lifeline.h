#pragma once

#include "platform/Queues.h"

#include <memory>
#include <utility>

namespace aerolith {

/// Ties posted blocks to the life of the object that posts them: a guarded block does nothing once the
/// object, of which the lifeline is a member, is gone. The blocks run on the thread that destroys the object.
class Lifeline
{
public:
    template <typename Block>
    [[nodiscard]] Task guarded(Block block) const
    {
        return [alive = std::weak_ptr<const char>(m_alive), block = std::move(block)] {
            if (!alive.expired()) {
                block();
            }
        };
    }

private:
    std::shared_ptr<const char> m_alive = std::make_shared<const char>();
};

} // namespace aerolith
