#include "update/AutomaticChecks.h"

#include "update/SettingKeys.h"

#include <utility>

namespace aerolith {

namespace {

constexpr std::chrono::hours period{24};
/// Rather than one timer of a whole day: the machine may sleep, and its clock be set.
constexpr std::chrono::hours lookInterval{1};

std::chrono::seconds secondsNow(const Clock& clock)
{
    return std::chrono::floor<std::chrono::seconds>(clock.now()).time_since_epoch();
}

} // namespace

bool isCheckDue(std::optional<qint64> last, std::chrono::seconds now)
{
    return !last || *last > now.count() || *last <= (now - period).count();
}

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
    m_userDefaults.setInteger(secondsNow(m_clock).count(), SettingKeys::lastUpdateCheck);
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
    if (isCheckDue(m_userDefaults.integerForKey(SettingKeys::lastUpdateCheck), secondsNow(m_clock))) {
        m_check();
    }
}

} // namespace aerolith
