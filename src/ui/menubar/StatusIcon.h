#pragma once

#include <QIcon>
#include <QString>

namespace aerolith {

/// The symbol as an icon for the desktop's bar, whose colour no program is told: in the colour that suits the
/// palette, with a rim of its opposite, so that it is seen on light and dark alike. GUI thread.
[[nodiscard]] QIcon statusIcon(const QString& symbol);

} // namespace aerolith
