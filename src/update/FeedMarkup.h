#pragma once

#include "platform/Result.h"

#include <QStringView>

namespace aerolith {

/// Why a feed's text is not given to Qt's XML reader, with the line: some feeds of a megabyte would keep that
/// busy for minutes. It compares every attribute of a tag with every other, and looks a prefix up in every
/// name space that has been declared around it. No feed in use comes near these limits.
[[nodiscard]] Failure markupObstacle(QStringView feed);

} // namespace aerolith
