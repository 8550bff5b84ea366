#pragma once

#include "platform/Log.h"

#include <QStringList>

#include <mutex>
#include <utility>

namespace aerolith {

class RecordingLog : public Log
{
public:
    void line(const QString& text) override
    {
        const std::lock_guard lock(m_mutex);
        m_lines.append(text);
    }

    /// The lines since the last call.
    QStringList take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_lines, {});
    }

private:
    std::mutex m_mutex;
    QStringList m_lines;
};

} // namespace aerolith
