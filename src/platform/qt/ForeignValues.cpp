#include "platform/qt/ForeignValues.h"

#include <QList>

#include <cctype>

namespace aerolith {

namespace {

/// Of the types without a text of their own the program stores 6, a number with a fraction, alone.
bool isForeign(const QByteArray& line)
{
    constexpr QByteArrayView stored = "Variant(";
    constexpr QByteArrayView number = R"(Variant(\0\0\0\x6)";
    for (qsizetype at = line.indexOf(stored); at >= 0; at = line.indexOf(stored, at + 1)) {
        const QByteArrayView rest = QByteArrayView(line).sliced(at);
        const bool isNumber = rest.startsWith(number) && rest.size() > number.size() &&
                              !std::isxdigit(static_cast<unsigned char>(rest[number.size()]));
        if (!isNumber) {
            return true;
        }
    }
    return false;
}

} // namespace

QByteArray withoutForeignValues(const QByteArray& settings)
{
    QList<QByteArray> lines = settings.split('\n');
    return lines.removeIf(isForeign) == 0 ? settings : lines.join('\n');
}

} // namespace aerolith
