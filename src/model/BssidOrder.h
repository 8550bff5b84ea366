#pragma once

#include <QStringView>
#include <QtGlobal>

namespace aerolith {

/// The number that orders BSSIDs: that of the address where the text is one in lower-case hexadecimal with
/// colons, and `notAnAddress`, above all of these, for any other text. Numbers compare without a look at the
/// texts, which lie all over the memory.
inline constexpr quint64 notAnAddress = quint64{1} << 48;

[[nodiscard]] inline quint64 bssidNumber(QStringView bssid)
{
    constexpr qsizetype addressLength = 17;
    if (bssid.size() != addressLength) {
        return notAnAddress;
    }
    quint64 number = 0;
    for (qsizetype i = 0; i < addressLength; ++i) {
        const char16_t character = bssid[i].unicode();
        if (i % 3 == 2) {
            if (character != u':') {
                return notAnAddress;
            }
        } else if (character >= u'0' && character <= u'9') {
            number = number << 4 | static_cast<quint64>(character - u'0');
        } else if (character >= u'a' && character <= u'f') {
            number = number << 4 | static_cast<quint64>(character - u'a' + 10);
        } else {
            return notAnAddress;
        }
    }
    return number;
}

/// A BSSID with its number, for comparing.
struct BssidKey
{
    explicit BssidKey(QStringView bssid) : number(bssidNumber(bssid)), text(bssid) {}

    BssidKey(quint64 itsNumber, QStringView itsText) : number(itsNumber), text(itsText) {}

    quint64 number;
    /// Whoever makes the key keeps the characters as long as the key.
    QStringView text;

    friend bool operator<(const BssidKey& a, const BssidKey& b)
    {
        return a.number != b.number ? a.number < b.number : a.number == notAnAddress && a.text < b.text;
    }

    friend bool operator==(const BssidKey& a, const BssidKey& b)
    {
        return a.number == b.number && (a.number != notAnAddress || a.text == b.text);
    }
};

} // namespace aerolith
