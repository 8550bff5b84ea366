#pragma once

#include "platform/Log.h"
#include "platform/UserDefaults.h"

#include <QHash>
#include <QVariant>

#include <mutex>

namespace aerolith {

/// The user defaults in an INI file in the format of Qt's settings class. The file is read once and written,
/// as a whole and in one step, at every change; it is the user's alone, for the hidden list tells where they
/// have been. What could not be written is tried again with the next
/// change; an outage is logged once.
class SettingsFile : public UserDefaults
{
public:
    /// A file that is not there is no settings; one that cannot be read or is malformed is logged, and what
    /// could be read of it counts.
    SettingsFile(QString path, Log& log);

    /// The user's own: $XDG_CONFIG_HOME/aerolith/aerolith.conf, in ~/.config when the variable is unset.
    [[nodiscard]] static QString userPath();

    [[nodiscard]] std::optional<double> doubleForKey(const QString& key) const override;
    [[nodiscard]] std::optional<qint64> integerForKey(const QString& key) const override;
    [[nodiscard]] std::optional<QByteArray> dataForKey(const QString& key) const override;

    void setDouble(double value, const QString& key) override { store(key, value); }

    void setInteger(qint64 value, const QString& key) override { store(key, value); }

    void setData(const QByteArray& value, const QString& key) override { store(key, value); }

private:
    enum class Cleaning
    {
        unnecessary,
        done,
        failed
    };

    [[nodiscard]] QVariant stored(const QString& key) const;
    void store(const QString& key, const QVariant& value);
    /// Takes the file from everybody but its owner.
    void makePrivate() const;
    /// Makes an empty one of its owner's alone where there is none.
    void makeFile() const;
    /// Takes the lines out of the file that Qt must not read.
    [[nodiscard]] Cleaning removeForeignValues() const;
    /// Writes what is not in the file yet; false when the file is as it was.
    [[nodiscard]] bool save() const;
    /// The file's text with that in it; absent where there is no room to make it.
    [[nodiscard]] std::optional<QByteArray> completed() const;
    [[nodiscard]] QString malformed() const;
    [[nodiscard]] QString accessRefused(QLatin1StringView action) const;

    mutable std::mutex m_mutex;
    QString m_path;
    /// What the file holds or, where it could not be written, should hold: reads come from here.
    QHash<QString, QVariant> m_values;
    QHash<QString, QVariant> m_unsaved;
    bool m_failureLogged = false;
    Log& m_log;
};

} // namespace aerolith
