#pragma once

#include "update/Signature.h"

#include <sodium.h>

namespace aerolith {

/// A key pair of the test's own.
struct Keys
{
    Keys()
    {
        crypto_sign_keypair(reinterpret_cast<unsigned char*>(open.bytes.data()),
                            reinterpret_cast<unsigned char*>(secret.data()));
    }

    [[nodiscard]] Signature sign(const QByteArray& message) const
    {
        Signature signature{QByteArray(crypto_sign_BYTES, '\0')};
        crypto_sign_detached(reinterpret_cast<unsigned char*>(signature.bytes.data()), nullptr,
                             reinterpret_cast<const unsigned char*>(message.constData()),
                             static_cast<unsigned long long>(message.size()),
                             reinterpret_cast<const unsigned char*>(secret.constData()));
        return signature;
    }

    PublicKey open{QByteArray(crypto_sign_PUBLICKEYBYTES, '\0')};
    QByteArray secret{crypto_sign_SECRETKEYBYTES, '\0'};
};

} // namespace aerolith
