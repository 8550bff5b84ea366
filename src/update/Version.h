#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <compare>
#include <optional>

namespace aerolith {

/// A version of the program, in the order of versions: "1.10" is newer than "1.9".
///
/// Numbers with dots between them, as many and as long as one likes; missing ones count as 0, so that "1.2"
/// and "1.2.0" are the same version. Behind a dash a pre-release, which comes before its release: identifiers
/// with dots between them, those of digits ordered by number and before those with letters, which are ordered
/// by their characters; of two that begin alike the shorter comes first. Behind a plus sign a build, which
/// does not count.
class Version
{
public:
    /// Of a text at most 100 characters long. Absent when it is no version.
    [[nodiscard]] static std::optional<Version> parse(QStringView text);

    [[nodiscard]] std::strong_ordering operator<=>(const Version& other) const;

    [[nodiscard]] bool operator==(const Version& other) const { return std::is_eq(*this <=> other); }

private:
    /// Digits without leading zeros, the last not empty: 0 is no digit at all.
    QList<QByteArray> m_numbers;
    /// Empty for a release.
    QList<QByteArray> m_preRelease;
};

} // namespace aerolith
