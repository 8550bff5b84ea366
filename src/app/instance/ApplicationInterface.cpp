#include "app/instance/ApplicationInterface.h"

#include <utility>

namespace aerolith {

ApplicationInterface::ApplicationInterface(QObject* parent, std::function<void(const QVariantMap&)> activate)
    : QDBusAbstractAdaptor(parent), m_activate(std::move(activate))
{
}

void ApplicationInterface::Activate(const QVariantMap& platformData)
{
    m_activate(platformData);
}

void ApplicationInterface::Open(const QStringList& /*uris*/, const QVariantMap& platformData)
{
    m_activate(platformData);
}

void ApplicationInterface::ActivateAction(const QString& /*name*/, const QVariantList& /*parameter*/,
                                          const QVariantMap& /*platformData*/)
{
}

} // namespace aerolith
