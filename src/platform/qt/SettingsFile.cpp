#include "platform/qt/SettingsFile.h"

#include <QStandardPaths>

#include <cmath>

namespace aerolith {

using namespace Qt::StringLiterals;

SettingsFile::SettingsFile(const QString& path, Log& log) : m_file(path, QSettings::IniFormat), m_log(log)
{
    logStatus(u"read"_s);
    const QStringList keys = m_file.allKeys();
    for (const QString& key : keys) {
        m_values.insert(key, m_file.value(key));
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
    m_file.setValue(key, value);
    m_file.sync();
    logStatus(u"write"_s);
}

void SettingsFile::logStatus(const QString& action)
{
    switch (m_file.status()) {
    case QSettings::NoError:
        return;
    case QSettings::AccessError:
        m_log.line(
            u"Cannot %1 the settings file %2: access refused or disk full"_s.arg(action, m_file.fileName()));
        return;
    case QSettings::FormatError:
        m_log.line(u"The settings file %1 is malformed: what cannot be read counts as not set"_s.arg(
            m_file.fileName()));
        return;
    }
}

} // namespace aerolith
