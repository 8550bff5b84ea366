#include "Require.h"
#include "model/HiddenList.h"

using namespace aerolith;

/// The input is the stored hidden list, as a settings file may hold it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray stored(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QStringList bssids = decodeHiddenBSSIDs(stored);
    // What was read is stored in a form that reads the same.
    const QByteArray encoded = encodeHiddenBSSIDs(bssids);
    require(encoded.startsWith('[') && encoded.endsWith(']'));
    require(encodeHiddenBSSIDs(decodeHiddenBSSIDs(encoded)) == encoded);
    return 0;
}
