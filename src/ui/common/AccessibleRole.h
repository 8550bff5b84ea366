#pragma once

#include <QAccessible>

class QWidget;

namespace aerolith {

/// What assistive technology knows the widget as, where Qt would say that it is nothing in particular. Before
/// it is shown. Main thread.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

} // namespace aerolith
