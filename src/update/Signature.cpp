#include "update/Signature.h"

#include <sodium/crypto_sign.h>

namespace aerolith {

namespace {

std::optional<QByteArray> decoded(const QString& base64, qsizetype size)
{
    const auto result =
        QByteArray::fromBase64Encoding(base64.toUtf8().trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    return result && result.decoded.size() == size ? std::optional(result.decoded) : std::nullopt;
}

const unsigned char* data(const QByteArray& bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

} // namespace

std::optional<Signature> Signature::parse(const QString& base64)
{
    const auto bytes = decoded(base64, crypto_sign_BYTES);
    return bytes ? std::optional(Signature{*bytes}) : std::nullopt;
}

std::optional<PublicKey> PublicKey::parse(const QString& base64)
{
    const auto bytes = decoded(base64, crypto_sign_PUBLICKEYBYTES);
    return bytes ? std::optional(PublicKey{*bytes}) : std::nullopt;
}

bool PublicKey::hasSigned(std::span<const unsigned char> message, const Signature& signature) const
{
    // It reads as many bytes as a signature and a key have.
    return signature.bytes.size() == crypto_sign_BYTES && bytes.size() == crypto_sign_PUBLICKEYBYTES &&
           crypto_sign_verify_detached(data(signature.bytes), message.data(), message.size(), data(bytes)) ==
               0;
}

} // namespace aerolith
