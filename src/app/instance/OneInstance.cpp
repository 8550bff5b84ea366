#include "app/instance/OneInstance.h"

#include "app/instance/ApplicationInterface.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>

#include <algorithm>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int patienceMilliseconds = 5000;
/// Those that end while they are asked, one after the other.
constexpr int mostAttempts = 3;

const QString& serviceName()
{
    static const QString name = u"org.aerolith.Aerolith"_s;
    return name;
}

const QString& objectPath()
{
    static const QString path = u"/org/aerolith/Aerolith"_s;
    return path;
}

Error unknown(const QString& reason)
{
    return {u"Cannot tell whether Aerolith is running already: %1"_s.arg(reason)};
}

} // namespace

OneInstance::OneInstance(QDBusConnection bus) : m_bus(std::move(bus))
{
    new ApplicationInterface(this, [this](const QVariantMap& platformData) {
        Q_EMIT startedAgain(StartupToken::fromPlatformData(platformData));
    });
}

OneInstance::~OneInstance()
{
    release();
}

Result<OneInstance::Role> OneInstance::claim(const StartupToken& token)
{
    if (!m_bus.isConnected()) {
        return unknown(m_bus.lastError().message());
    }
    auto taken = takeName();
    // The other one's, not the bus's.
    const QDeadlineTimer patience(patienceMilliseconds);
    for (int attempt = 1;; ++attempt) {
        if (!taken.ok()) {
            return unknown(taken.error().description);
        }
        if (taken.value()) {
            return Role::first;
        }
        const auto left = std::max(patience.remainingTime(), qint64{1});
        const Failure failure = activateOther(token, static_cast<int>(left));
        if (!failure) {
            return Role::second;
        }
        if (attempt == mostAttempts || patience.hasExpired()) {
            return Error{u"Aerolith is running already, but does not answer: %1"_s.arg(failure->description)};
        }
        // It may have ended meanwhile.
        taken = takeName();
    }
}

void OneInstance::release()
{
    if (std::exchange(m_isFirst, false)) {
        m_bus.interface()->unregisterService(serviceName());
        m_bus.unregisterObject(objectPath());
    }
}

Result<bool> OneInstance::takeName()
{
    // The object comes first: whoever finds the name calls at once.
    m_bus.registerObject(objectPath(), this);
    const auto reply = m_bus.interface()->registerService(serviceName());
    m_isFirst = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!m_isFirst) {
        m_bus.unregisterObject(objectPath());
    }
    return reply.isValid() ? Result<bool>(m_isFirst) : Result<bool>(Error{reply.error().message()});
}

Failure OneInstance::activateOther(const StartupToken& token, int milliseconds) const
{
    auto call = QDBusMessage::createMethodCall(serviceName(), objectPath(), u"org.freedesktop.Application"_s,
                                               u"Activate"_s);
    call << token.platformData();
    // One that has just ended is not started: this process is there already.
    call.setAutoStartService(false);
    const QDBusMessage answer = m_bus.call(call, QDBus::Block, milliseconds);
    return answer.type() == QDBusMessage::ReplyMessage ? Failure() : Error{answer.errorMessage()};
}

} // namespace aerolith
