#include "update/DownloadFile.h"

#include "update/UpdateTexts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// "a.tar.gz" ends in ".tar.gz", "a-1.2.deb" in ".deb".
qsizetype endingOf(const QString& name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0) {
        return name.size();
    }
    constexpr auto archive = ".tar"_L1;
    const bool isArchive = dot > archive.size() && QStringView(name).first(dot).endsWith(archive);
    return isArchive ? dot - archive.size() : dot;
}

QString numbered(const QString& name, int number)
{
    return number == 0 ? name : QString(name).insert(endingOf(name), u" (%1)"_s.arg(number));
}

bool canBeInName(QChar character)
{
    return character.isLetterOrNumber() || u"._-+~() "_s.contains(character);
}

} // namespace

QString downloadName(const QUrl& url)
{
    constexpr qsizetype longest = 80;
    QString name = url.fileName(QUrl::FullyDecoded).section(u'/', -1);
    name.removeIf([](QChar character) { return !canBeInName(character); });
    // The end tells what kind of file it is.
    name = name.right(longest).trimmed();
    // Neither hidden, nor a way to another folder, nor an option on somebody's command line.
    while (name.startsWith(u'.') || name.startsWith(u'-')) {
        name.remove(0, 1);
    }
    return name.isEmpty() ? u"download"_s : name;
}

DownloadFile::DownloadFile(const QString& folder)
    : m_folder(folder), m_file(QDir(folder).filePath(u".aerolith-XXXXXX.part"_s))
{
}

Failure DownloadFile::open()
{
    if (!QDir().mkpath(m_folder)) {
        return Error{UpdateTexts::tr("The folder %1 cannot be made").arg(m_folder)};
    }
    return m_file.open() ? Failure() : cannotSave();
}

Failure DownloadFile::write(const QByteArray& bytes)
{
    return m_file.write(bytes) == bytes.size() && m_file.flush() ? Failure() : cannotSave();
}

bool DownloadFile::isSignedBy(const PublicKey& key, const Signature& signature)
{
    const qint64 length = size();
    uchar* bytes = m_file.map(0, length);
    return bytes != nullptr && key.hasSigned({bytes, static_cast<std::size_t>(length)}, signature);
}

Result<QString> DownloadFile::keep(const QString& name)
{
    constexpr int mostNumbers = 1000;
    // Temporary files are for the user alone; a download is a file like others.
    m_file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    for (int number = 0; number < mostNumbers; ++number) {
        const QString path = QDir(m_folder).filePath(numbered(name, number));
        // It never replaces a file.
        if (!QFileInfo::exists(path) && m_file.rename(path)) {
            m_file.setAutoRemove(false);
            return path;
        }
    }
    return cannotSave();
}

Error DownloadFile::cannotSave() const
{
    return Error{UpdateTexts::tr("Nothing can be saved in %1: %2").arg(m_folder, m_file.errorString())};
}

} // namespace aerolith
