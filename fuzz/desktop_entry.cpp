#include "Require.h"
#include "platform/linux/xdg/DesktopEntry.h"

using namespace aerolith;

/// The input is an autostart entry as some program may have left it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QByteArray changed = DesktopEntry::withValue(file, "Hidden", "true");
    if (!DesktopEntry::isEntry(file)) {
        require(!DesktopEntry::value(file, "Hidden"));
        require(changed == file);
        return 0;
    }
    require(DesktopEntry::isEntry(changed));
    require(DesktopEntry::value(changed, "Hidden") == "true");
    require(DesktopEntry::value(changed, "Exec") == DesktopEntry::value(file, "Exec"));
    require(DesktopEntry::withValue(changed, "Hidden", "true") == changed);
    return 0;
}
