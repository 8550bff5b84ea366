#include "update/Version.h"

#include <algorithm>

namespace aerolith {

namespace {

constexpr qsizetype longestVersion = 100;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isIdentifierCharacter(char character)
{
    return isDigit(character) || (character >= 'a' && character <= 'z') ||
           (character >= 'A' && character <= 'Z') || character == '-';
}

template <typename Predicate>
bool isMadeOf(const QByteArray& text, Predicate predicate)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), predicate);
}

template <typename Predicate>
bool areMadeOf(const QList<QByteArray>& texts, Predicate predicate)
{
    return std::all_of(texts.begin(), texts.end(),
                       [&](const QByteArray& text) { return isMadeOf(text, predicate); });
}

/// So that a longer number is a larger one, however long it is.
QByteArray withoutLeadingZeros(const QByteArray& digits)
{
    const auto first = std::find_if(digits.begin(), digits.end(), [](char digit) { return digit != '0'; });
    return {first, digits.end() - first};
}

std::strong_ordering compareCharacters(const QByteArray& a, const QByteArray& b)
{
    return a.compare(b) <=> 0;
}

std::strong_ordering compareNumbers(const QByteArray& a, const QByteArray& b)
{
    const auto bySize = a.size() <=> b.size();
    return std::is_neq(bySize) ? bySize : compareCharacters(a, b);
}

std::strong_ordering compareIdentifiers(const QByteArray& a, const QByteArray& b)
{
    const bool aIsNumber = isMadeOf(a, isDigit);
    const bool bIsNumber = isMadeOf(b, isDigit);
    if (aIsNumber != bIsNumber) {
        return aIsNumber ? std::strong_ordering::less : std::strong_ordering::greater;
    }
    return aIsNumber ? compareNumbers(withoutLeadingZeros(a), withoutLeadingZeros(b))
                     : compareCharacters(a, b);
}

/// The part of `text` behind the first `separator`, which it loses; absent without one.
std::optional<QByteArray> takeBehind(QByteArray& text, char separator)
{
    const qsizetype at = text.indexOf(separator);
    if (at < 0) {
        return {};
    }
    const QByteArray behind = text.sliced(at + 1);
    text.truncate(at);
    return behind;
}

} // namespace

std::optional<Version> Version::parse(QStringView text)
{
    if (text.size() > longestVersion) {
        return {};
    }
    QByteArray numbers = text.toUtf8();
    const auto build = takeBehind(numbers, '+');
    const auto preRelease = takeBehind(numbers, '-');

    Version version;
    version.m_numbers = numbers.split('.');
    if (preRelease) {
        version.m_preRelease = preRelease->split('.');
    }
    if (!areMadeOf(version.m_numbers, isDigit) || !areMadeOf(version.m_preRelease, isIdentifierCharacter) ||
        (build && !areMadeOf(build->split('.'), isIdentifierCharacter))) {
        return {};
    }
    std::transform(version.m_numbers.cbegin(), version.m_numbers.cend(), version.m_numbers.begin(),
                   withoutLeadingZeros);
    while (!version.m_numbers.isEmpty() && version.m_numbers.last().isEmpty()) {
        version.m_numbers.removeLast();
    }
    return version;
}

std::strong_ordering Version::operator<=>(const Version& other) const
{
    const auto byNumber = std::lexicographical_compare_three_way(
        m_numbers.begin(), m_numbers.end(), other.m_numbers.begin(), other.m_numbers.end(), compareNumbers);
    if (std::is_neq(byNumber)) {
        return byNumber;
    }
    if (m_preRelease.isEmpty() || other.m_preRelease.isEmpty()) {
        return m_preRelease.isEmpty() <=> other.m_preRelease.isEmpty();
    }
    return std::lexicographical_compare_three_way(m_preRelease.begin(), m_preRelease.end(),
                                                  other.m_preRelease.begin(), other.m_preRelease.end(),
                                                  compareIdentifiers);
}

} // namespace aerolith
