#pragma once

#include <QByteArray>
#include <QHash>

#include <chrono>
#include <mutex>

namespace aerolith {

/// The names that NetworkManager has lately been asked to scan for. It keeps a name until its next scan,
/// while joined for up to 8 seconds, and some versions (1.42) crash when they are asked for one that they
/// still keep. Any thread.
class AskedNames
{
public:
    /// Whether the name may be asked for now; if so, it counts as asked for.
    [[nodiscard]] bool take(const QByteArray& name)
    {
        const std::scoped_lock lock(m_mutex);
        const auto now = Clock::now();
        m_times.removeIf([now](const auto& asked) { return now - asked.value() >= keeping; });
        if (m_times.contains(name)) {
            return false;
        }
        m_times.insert(name, now);
        return true;
    }

private:
    using Clock = std::chrono::steady_clock;

    static constexpr auto keeping = std::chrono::seconds(10);

    std::mutex m_mutex;
    QHash<QByteArray, Clock::time_point> m_times;
};

} // namespace aerolith
