#include "app/instance/StartupToken.h"

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

const QString& tokenKey()
{
    static const QString key = u"activation-token"_s;
    return key;
}

const QString& idKey()
{
    static const QString key = u"desktop-startup-id"_s;
    return key;
}

} // namespace

StartupToken StartupToken::fromEnvironment()
{
    return {.activationToken = qgetenv("XDG_ACTIVATION_TOKEN"), .startupId = qgetenv("DESKTOP_STARTUP_ID")};
}

StartupToken StartupToken::fromPlatformData(const QVariantMap& data)
{
    return {.activationToken = data.value(tokenKey()).toString().toUtf8(),
            .startupId = data.value(idKey()).toString().toUtf8()};
}

QVariantMap StartupToken::platformData() const
{
    QVariantMap data;
    if (!activationToken.isEmpty()) {
        data.insert(tokenKey(), QString::fromUtf8(activationToken));
    }
    if (!startupId.isEmpty()) {
        data.insert(idKey(), QString::fromUtf8(startupId));
    }
    return data;
}

} // namespace aerolith
