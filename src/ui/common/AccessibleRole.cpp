#include "ui/common/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace aerolith {

namespace {

constexpr auto property = "accessibleRole";

QAccessibleInterface* make(const QString& /*className*/, QObject* object)
{
    const QVariant role = object->property(property);
    return role.isValid() ? new QAccessibleWidget(qobject_cast<QWidget*>(object),
                                                  static_cast<QAccessible::Role>(role.toInt()))
                          : nullptr;
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    // A function that is installed already is left as it is.
    QAccessible::installFactory(make);
    widget.setProperty(property, static_cast<int>(role));
}

} // namespace aerolith
