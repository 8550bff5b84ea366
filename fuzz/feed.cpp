#include "Require.h"
#include "update/Appcast.h"
#include "update/DownloadFile.h"
#include "update/HttpsAddress.h"
#include "update/ReleaseNotes.h"

#include <algorithm>

using namespace aerolith;

namespace {

void requireReadable(const QString& notes)
{
    require(notes.size() <= 20'020);
    require(std::none_of(notes.begin(), notes.end(), [](QChar character) {
        return character.category() == QChar::Other_Control && character != u'\n';
    }));
    require(!notes.contains(QStringLiteral("\n\n\n")));
}

void requireUsable(const AppcastItem& item)
{
    require(Version::parse(item.versionText) == item.version);
    require(isHttpsAddress(item.url));
    require(item.length >= 1 && item.length <= maximumDownloadSize);
    require(item.signature.bytes.size() == 64);
    requireReadable(item.notes);
    const QString name = downloadName(item.url);
    require(!name.isEmpty() && name.size() <= 80 && !name.contains(u'/') && !name.startsWith(u'.'));
}

} // namespace

/// The input is an update feed; as it stands it is release notes, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray feed(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    requireReadable(readableNotes(QString::fromUtf8(feed)));

    const Result<QList<AppcastItem>> items = parseAppcast(feed);
    if (!items.ok()) {
        require(items.error().description.startsWith(QStringLiteral("line ")));
        return 0;
    }
    const Version running = *Version::parse(u"1.0");
    const auto newest = newestUpdate(items.value(), running, QStringLiteral("x86_64"));
    require(!newest || newest->version > running);
    for (const AppcastItem& item : items.value()) {
        requireUsable(item);
        require(!item.architecture.isEmpty() || item.version <= (newest ? newest->version : running));
    }
    return 0;
}
