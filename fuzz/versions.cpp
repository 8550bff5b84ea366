#include "Require.h"
#include "update/Version.h"

using namespace aerolith;

namespace {

void requireOrder(const Version& a, const Version& b)
{
    require((a < b) == (b > a));
    require((a == b) == (b == a));
    require((a == b) == (!(a < b) && !(b < a)));
}

} // namespace

/// The input is three texts that may be versions, a line each.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QList<QByteArray> lines = text.split('\n');
    QList<Version> versions;
    for (const QByteArray& line : lines) {
        if (const auto version = Version::parse(QString::fromUtf8(line))) {
            require(*version == *version);
            versions.append(*version);
        }
    }
    if (versions.size() < 3) {
        return 0;
    }
    const auto& [a, b, c] = std::tie(versions[0], versions[1], versions[2]);
    requireOrder(a, b);
    requireOrder(b, c);
    require(!(a <= b && b <= c) || a <= c);
    return 0;
}
