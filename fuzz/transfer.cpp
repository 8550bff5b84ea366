#include "Require.h"
#include "update/HttpsAddress.h"
#include "update/Signature.h"

using namespace aerolith;

namespace {

void requireNoForgery(const Signature& signature)
{
    static const auto key = PublicKey::parse(QStringLiteral("11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo="));
    require(key && !key->hasSigned({}, signature));
}

} // namespace

/// The input is the Location header of a server's answer; as it stands it is a signature, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray header(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QUrl from(QStringLiteral("https://updates.example/feed/appcast.xml?all=1#top"));
    if (const auto target = redirectTarget(from, header)) {
        require(target->scheme() == QStringLiteral("https") && !target->host().isEmpty());
        require(target->userInfo().isEmpty());
        // An address that leads somewhere leads there from anywhere.
        const auto again =
            redirectTarget(QUrl(QStringLiteral("https://mirror.example/")), target->toEncoded());
        require(again && again->host() == target->host() && again->port() == target->port());
    }
    if (const auto signature = Signature::parse(QString::fromUtf8(header))) {
        require(signature->bytes.size() == 64);
        require(Signature::parse(QString::fromLatin1(signature->bytes.toBase64()))->bytes ==
                signature->bytes);
        requireNoForgery(*signature);
    }
    return 0;
}
