#pragma once

#include <QString>

namespace aerolith {

/// A reading as reports and the details have it, in every language: "-48 dBm".
[[nodiscard]] inline QString withUnit(qint64 number, QLatin1StringView unit)
{
    return QString::number(number) + u' ' + unit;
}

} // namespace aerolith
