#include "platform/simulated/JsonRead.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace aerolith {

IntegerIn signedInteger(qint64& target)
{
    return {target, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()};
}

IntegerIn unsignedInteger(qint64& target)
{
    return {target, 0, std::numeric_limits<qint32>::max()};
}

void read(const JsonPlace& place, IntegerIn integer)
{
    const QJsonValue& value = place.value();
    const double number = value.toDouble();
    if (!value.isDouble() || number != std::trunc(number) || number < static_cast<double>(integer.least) ||
        number > static_cast<double>(integer.most)) {
        place.expected(u"an integer from %1 to %2"_s.arg(integer.least).arg(integer.most));
        return;
    }
    integer.target = value.toInteger();
}

void read(const JsonPlace& place, qint64& target)
{
    read(place, signedInteger(target));
}

void read(const JsonPlace& place, bool& target)
{
    if (!place.value().isBool()) {
        place.expected(u"true or false"_s);
    }
    target = place.value().toBool();
}

void read(const JsonPlace& place, QString& target)
{
    if (!place.value().isString() || !place.value().toString().isValidUtf16()) {
        place.expected(u"a string of Unicode text"_s);
    }
    target = place.value().toString();
}

} // namespace aerolith
