#include "platform/files/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

Error cannot(QLatin1StringView action, const QFileDevice& file)
{
    return {u"Cannot %1 %2: %3"_s.arg(action, file.fileName(), file.errorString())};
}

/// A pipe or a device is not replaced by a file of its name.
bool isSpecial(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace

Result<QByteArray> readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return cannot("read"_L1, file);
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError) {
        return cannot("read"_L1, file);
    }
    return bytes;
}

Failure writeFile(const QString& path, const QByteArray& bytes)
{
    if (isSpecial(path)) {
        QFile file(path);
        const bool written =
            file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
        return written ? Failure() : cannot("write"_L1, file);
    }
    QSaveFile file(path);
    // commit() does not look at what becomes of the last bytes: on a full disk it would put half a file, or
    // an empty one, in the place of the old one.
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
    return written ? Failure() : cannot("write"_L1, file);
}

} // namespace aerolith
