#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>

/// Ed25519, as in RFC 8032: who holds the private key has signed these bytes.
namespace aerolith {

/// 64 bytes.
struct Signature
{
    QByteArray bytes;

    /// From base64. Absent when it is not a signature's.
    [[nodiscard]] static std::optional<Signature> parse(const QString& base64);
};

/// 32 bytes.
struct PublicKey
{
    QByteArray bytes;

    /// From base64. Absent when it is not a key's.
    [[nodiscard]] static std::optional<PublicKey> parse(const QString& base64);

    /// Reads the message once, in some seconds per gigabyte.
    [[nodiscard]] bool hasSigned(std::span<const unsigned char> message, const Signature& signature) const;
};

} // namespace aerolith
