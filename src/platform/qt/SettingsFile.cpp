#include "platform/qt/SettingsFile.h"

#include "platform/files/WholeFile.h"
#include "platform/qt/ForeignValues.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cmath>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// Milliseconds; another instance holds the lock for much less.
constexpr int lockPatience = 2'000;

} // namespace

SettingsFile::SettingsFile(QString path, Log& log) : m_path(std::move(path)), m_log(log)
{
    makePrivate();
    const Cleaning cleaning = removeForeignValues();
    if (cleaning != Cleaning::unnecessary) {
        m_log.line(malformed());
    }
    if (cleaning == Cleaning::failed) {
        return;
    }
    const QSettings file(m_path, QSettings::IniFormat);
    if (file.status() == QSettings::AccessError) {
        m_log.line(accessRefused("read"_L1));
    } else if (file.status() == QSettings::FormatError) {
        m_log.line(malformed());
    }
    for (const QString& key : file.allKeys()) {
        // What has no name cannot be asked for.
        if (!key.isEmpty()) {
            m_values.insert(key, file.value(key));
        }
    }
}

QString SettingsFile::userPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/aerolith/aerolith.conf"_L1;
}

std::optional<double> SettingsFile::doubleForKey(const QString& key) const
{
    bool ok = false;
    const double value = stored(key).toDouble(&ok);
    return ok && !std::isnan(value) ? std::optional(value) : std::nullopt;
}

std::optional<qint64> SettingsFile::integerForKey(const QString& key) const
{
    bool ok = false;
    const qint64 value = stored(key).toLongLong(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

std::optional<QByteArray> SettingsFile::dataForKey(const QString& key) const
{
    const QVariant value = stored(key);
    // A text stands for its UTF-8: that is what a hand-edited file holds.
    const bool readable = value.typeId() == QMetaType::QByteArray || value.typeId() == QMetaType::QString;
    return readable ? std::optional(value.toByteArray()) : std::nullopt;
}

QVariant SettingsFile::stored(const QString& key) const
{
    const std::lock_guard lock(m_mutex);
    return m_values.value(key);
}

void SettingsFile::store(const QString& key, const QVariant& value)
{
    const std::lock_guard lock(m_mutex);
    m_values.insert(key, value);
    m_unsaved.insert(key, value);
    const bool failed = !save();
    if (!failed) {
        m_unsaved.clear();
    } else if (!m_failureLogged) {
        m_log.line(accessRefused("write"_L1));
    }
    m_failureLogged = failed;
}

void SettingsFile::makePrivate() const
{
    constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                          QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const QFileInfo info(m_path);
    if (info.isFile() && (info.permissions() & others) != 0) {
        QFile::setPermissions(m_path, info.permissions() & ~others);
    }
}

void SettingsFile::makeFile() const
{
    // Qt narrows the permissions of a file of its own making only once it is written.
    if (QDir().mkpath(QFileInfo(m_path).path())) {
        QFile(m_path).open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
    }
}

SettingsFile::Cleaning SettingsFile::removeForeignValues() const
{
    const auto text = readFile(m_path);
    if (!text.ok()) {
        return Cleaning::unnecessary;
    }
    const QByteArray own = withoutForeignValues(text.value());
    if (own.size() == text.value().size()) {
        return Cleaning::unnecessary;
    }
    return writeFile(m_path, own) ? Cleaning::failed : Cleaning::done;
}

bool SettingsFile::save() const
{
    makeFile();
    makePrivate();
    QLockFile lock(m_path + ".lock"_L1);
    if (!lock.tryLock(lockPatience) || removeForeignValues() == Cleaning::failed) {
        return false;
    }
    const auto text = completed();
    return text && !writeFile(m_path, *text);
}

// On a full disk Qt would put an empty file in the place of the old one, so it is given a copy.
std::optional<QByteArray> SettingsFile::completed() const
{
    const QTemporaryDir folder(m_path + ".XXXXXX"_L1);
    const QString draft = folder.filePath(u"draft"_s);
    const QString text = folder.filePath(u"text"_s);
    if (!QFile::copy(m_path, draft)) {
        return {};
    }
    QSettings meant(draft, QSettings::IniFormat);
    for (auto unsaved = m_unsaved.cbegin(); unsaved != m_unsaved.cend(); ++unsaved) {
        meant.setValue(unsaved.key(), unsaved.value());
    }
    meant.sync();
    // By its old name Qt would remember the file as it was meant to be.
    if (!QFile::rename(draft, text)) {
        return {};
    }
    const QSettings written(text, QSettings::IniFormat);
    for (const QString& key : meant.allKeys()) {
        if (written.value(key).toString() != meant.value(key).toString()) {
            return {};
        }
    }
    const auto whole = readFile(text);
    return whole.ok() ? std::optional(whole.value()) : std::nullopt;
}

QString SettingsFile::malformed() const
{
    return u"The settings file %1 is malformed: what cannot be read counts as not set"_s.arg(m_path);
}

QString SettingsFile::accessRefused(QLatin1StringView action) const
{
    return u"Cannot %1 the settings file %2: access refused or disk full"_s.arg(action, m_path);
}

} // namespace aerolith
