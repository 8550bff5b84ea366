#include "platform/qt/FileWriting.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

Error cannotWrite(const QFileDevice& file)
{
    return Error{u"Cannot write %1: %2"_s.arg(file.fileName(), file.errorString())};
}

/// A pipe or a device is not replaced by a file of its name.
bool isSpecial(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace

Failure writeFile(const QString& path, const QByteArray& bytes)
{
    if (isSpecial(path)) {
        QFile file(path);
        const bool written =
            file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
        return written ? Failure() : cannotWrite(file);
    }
    QSaveFile file(path);
    // commit() does not look at what becomes of the last bytes: on a full disk it would put half a file, or
    // an empty one, in the place of the old one.
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
    return written ? Failure() : cannotWrite(file);
}

} // namespace aerolith
