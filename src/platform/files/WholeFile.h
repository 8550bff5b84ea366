#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QString>

namespace aerolith {

/// All bytes of a file. The error names the path and the reason. Any thread.
[[nodiscard]] Result<QByteArray> readFile(const QString& path);

/// Writes a whole file or leaves everything as it was: a failed write keeps the old file and leaves no half
/// one. A path to something else than a file, such as a pipe, is written to as it is. The error names the
/// path and the reason. Any thread; blocks until the bytes are on the disk.
[[nodiscard]] Failure writeFile(const QString& path, const QByteArray& bytes);

} // namespace aerolith
