#pragma once

#include <QIcon>
#include <QString>

class QWidget;

namespace aerolith {

/// The symbol as an icon for `widget`, in its palette's text colour for buttons: drawn anew whenever that
/// changes, sharp at every size and scale. GUI thread.
[[nodiscard]] QIcon symbolIcon(const QString& symbol, const QWidget& widget);

} // namespace aerolith
