#pragma once

#include <QString>

namespace aerolith {

/// What the backdrop tells the user in place of an access point.
struct BackdropMessage
{
    /// As in ui/common/Symbols.
    QString symbol;
    QString text;
};

[[nodiscard]] BackdropMessage backdropMessage(bool locationAccessDenied, bool listIsEmpty);

} // namespace aerolith
