#include "ui/menubar/AccessiblePopover.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QWidget>

namespace aerolith {

namespace {

/// Menus have a parent, the widget that they belong to; a popover stands for itself.
bool isOpenPopover(const QWidget* widget)
{
    return widget->windowType() == Qt::Popup && widget->parentWidget() == nullptr && widget->isVisible();
}

QWidgetList openPopovers()
{
    QWidgetList popovers = QApplication::topLevelWidgets();
    popovers.removeIf([](const QWidget* widget) { return !isOpenPopover(widget); });
    return popovers;
}

/// The root of the program's tree: Qt's own, then the popovers.
class AccessibleRoot : public QAccessibleApplication
{
public:
    [[nodiscard]] int childCount() const override
    {
        return QAccessibleApplication::childCount() + static_cast<int>(openPopovers().size());
    }

    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        const int windows = QAccessibleApplication::childCount();
        if (index < windows) {
            return QAccessibleApplication::child(index);
        }
        return QAccessible::queryAccessibleInterface(openPopovers().value(index - windows));
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto index = openPopovers().indexOf(qobject_cast<QWidget*>(child->object()));
        return index < 0 ? QAccessibleApplication::indexOfChild(child)
                         : QAccessibleApplication::childCount() + static_cast<int>(index);
    }
};

QAccessibleInterface* makeRoot(const QString& /*className*/, QObject* object)
{
    return object == QCoreApplication::instance() ? new AccessibleRoot : nullptr;
}

} // namespace

void listPopoversAsWindows()
{
    QAccessible::installFactory(makeRoot);
}

} // namespace aerolith
