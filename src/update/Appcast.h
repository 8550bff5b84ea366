#pragma once

#include "platform/Result.h"
#include "update/Signature.h"
#include "update/Version.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace aerolith {

/// Bytes.
inline constexpr qint64 maximumFeedSize = qint64{1024} * 1024;

/// Bytes. A larger file could not be verified without a pause that the user would notice.
inline constexpr qint64 maximumDownloadSize = qint64{128} * 1024 * 1024;

/// One file that a feed offers.
struct AppcastItem
{
    Version version;
    /// As the feed writes it, in ASCII.
    QString versionText;
    /// What is new, as text to read: see readableNotes(). Empty when the feed does not say.
    QString notes;
    /// An https address with a host.
    QUrl url;
    /// Bytes, from 1 to maximumDownloadSize.
    qint64 length = 0;
    /// The file's.
    Signature signature;
    /// The processor that the file is for, as in QSysInfo::buildCpuArchitecture(); empty: any.
    QString architecture;
};

/// The items of an appcast, in its order: an RSS 2.0 feed whose items have enclosures with the attributes url
/// and length, and, of the feed's own name space, version, edSignature and, if it likes, architecture. An
/// item with several enclosures counts as several, one without any as none. What else is in the feed is
/// passed over, but an enclosure that lacks something, a document type declaration, a tag beyond all measure,
/// or what is no XML in UTF-8 makes the whole feed unusable: the error names the line and what is wrong
/// there.
[[nodiscard]] Result<QList<AppcastItem>> parseAppcast(const QByteArray& feed);

/// The newest item that is newer than `running` and runs on this processor, of equals the first. Absent when
/// there is none.
[[nodiscard]] std::optional<AppcastItem> newestUpdate(const QList<AppcastItem>& items, const Version& running,
                                                      const QString& architecture);

} // namespace aerolith
