#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace aerolith {

/// The persisted settings, by key. Any thread. A value that is missing, or stored in a form that cannot be
/// read as what is asked for, is absent. A write is in force at once for every later read; a write that
/// cannot reach the disk is logged and otherwise kept for the rest of the run.
class UserDefaults
{
public:
    UserDefaults() = default;
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    virtual ~UserDefaults() = default;

    /// Never NaN; may be any other number, infinities included.
    [[nodiscard]] virtual std::optional<double> doubleForKey(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<qint64> integerForKey(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<QByteArray> dataForKey(const QString& key) const = 0;

    virtual void setDouble(double value, const QString& key) = 0;
    virtual void setInteger(qint64 value, const QString& key) = 0;
    virtual void setData(const QByteArray& value, const QString& key) = 0;
};

} // namespace aerolith
