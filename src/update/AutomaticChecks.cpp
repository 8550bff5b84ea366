#include "update/AutomaticChecks.h"

#include "update/SettingKeys.h"

#include <utility>

namespace aerolith {

namespace {

constexpr std::chrono::hours period{24};
/// Rather than one timer of a whole day: the machine may sleep, and its clock be set.
constexpr std::chrono::hours lookInterval{1};

} // namespace

AutomaticChecks::AutomaticChecks(UserDefaults& userDefaults, const Clock& clock, MainQueue& mainQueue,
                                 Task check)
    : m_userDefaults(userDefaults), m_clock(clock), m_mainQueue(mainQueue), m_check(std::move(check))
{
}

void AutomaticChecks::start()
{
    schedule();
}

bool AutomaticChecks::areWanted() const
{
    return m_userDefaults.integerForKey(SettingKeys::automaticUpdateChecks).value_or(0) != 0;
}

void AutomaticChecks::setWanted(bool wanted)
{
    m_userDefaults.setInteger(wanted ? 1 : 0, SettingKeys::automaticUpdateChecks);
    schedule();
}

void AutomaticChecks::noteCheck()
{
    const auto now = std::chrono::floor<std::chrono::seconds>(m_clock.now());
    m_userDefaults.setInteger(now.time_since_epoch().count(), SettingKeys::lastUpdateCheck);
}

void AutomaticChecks::schedule()
{
    m_timer.reset();
    if (areWanted()) {
        m_timer = m_mainQueue.scheduledTimer(lookInterval, [this] { checkIfDue(); });
        checkIfDue();
    }
}

void AutomaticChecks::checkIfDue()
{
    if (isDue()) {
        m_check();
    }
}

bool AutomaticChecks::isDue() const
{
    const auto last = m_userDefaults.integerForKey(SettingKeys::lastUpdateCheck);
    if (!last) {
        return true;
    }
    const qint64 now = std::chrono::floor<std::chrono::seconds>(m_clock.now()).time_since_epoch().count();
    // A check in the future was noted by a clock that has been set back since.
    return *last > now || now - *last >= std::chrono::seconds(period).count();
}

} // namespace aerolith
