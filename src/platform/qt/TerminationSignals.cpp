#include "platform/qt/TerminationSignals.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace aerolith {

namespace {

constexpr int terminationSignals[] = {SIGINT, SIGTERM};

/// The event that wakes the event loop up; a signal handler reaches globals only.
volatile std::sig_atomic_t wakeUpEvent = -1;

extern "C" void handleTermination(int)
{
    const int savedErrno = errno;
    const std::uint64_t one = 1;
    // Fails only if the event is signalled 2^64 - 2 times already.
    [[maybe_unused]] const ssize_t written = write(wakeUpEvent, &one, sizeof one);
    errno = savedErrno;
}

void setHandler(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : terminationSignals) {
        sigaction(signal, &action, nullptr);
    }
}

} // namespace

TerminationSignals::TerminationSignals(const std::function<void()>& terminate)
    : m_event(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , m_notifier(std::make_unique<QSocketNotifier>(m_event, QSocketNotifier::Read))
{
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this, terminate] {
        m_notifier->setEnabled(false);
        terminate();
    });
    wakeUpEvent = m_event;
    setHandler(handleTermination);
}

TerminationSignals::~TerminationSignals()
{
    setHandler(SIG_DFL);
    m_notifier.reset();
    close(m_event);
}

} // namespace aerolith
