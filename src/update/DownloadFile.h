#pragma once

#include "platform/Result.h"
#include "update/Signature.h"

#include <QString>
#include <QTemporaryFile>
#include <QUrl>

namespace aerolith {

/// A name for what is downloaded from this address that is a name and nothing else in any folder: the last
/// part of its path without what a file name cannot or should not have; "download" when nothing is left.
[[nodiscard]] QString downloadName(const QUrl& url);

/// A file that is kept only when it is known to be good: until then it has a name of its own beside its final
/// one, and it is deleted with this object. Main thread.
class DownloadFile
{
public:
    /// In this folder, which is made if it is not there.
    explicit DownloadFile(const QString& folder);

    /// Why nothing can be written; to be asked before the first write.
    [[nodiscard]] Failure open();

    /// The error names the folder and the reason.
    [[nodiscard]] Failure write(const QByteArray& bytes);

    [[nodiscard]] qint64 size() const { return m_file.size(); }

    /// Whether the key's owner has signed what was written. False also when it cannot be read back.
    [[nodiscard]] bool isSignedBy(const PublicKey& key, const Signature& signature);

    /// Gives the file its name or, where that is taken, the next free one: "a.deb", "a (1).deb". Returns its
    /// path.
    [[nodiscard]] Result<QString> keep(const QString& name);

private:
    [[nodiscard]] Error cannotSave() const;

    QString m_folder;
    QTemporaryFile m_file;
};

} // namespace aerolith
