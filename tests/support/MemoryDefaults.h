#pragma once

#include "platform/UserDefaults.h"

#include <QHash>
#include <QVariant>

#include <mutex>

namespace aerolith {

/// User defaults that last as long as the test.
class MemoryDefaults : public UserDefaults
{
public:
    [[nodiscard]] std::optional<double> doubleForKey(const QString& key) const override
    {
        return get<double>(key);
    }

    [[nodiscard]] std::optional<qint64> integerForKey(const QString& key) const override
    {
        return get<qint64>(key);
    }

    [[nodiscard]] std::optional<QByteArray> dataForKey(const QString& key) const override
    {
        return get<QByteArray>(key);
    }

    void setDouble(double value, const QString& key) override { set(key, value); }

    void setInteger(qint64 value, const QString& key) override { set(key, value); }

    void setData(const QByteArray& value, const QString& key) override { set(key, value); }

private:
    void set(const QString& key, const QVariant& value)
    {
        const std::lock_guard lock(m_mutex);
        m_values.insert(key, value);
    }

    template <typename Value>
    [[nodiscard]] std::optional<Value> get(const QString& key) const
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_values.constFind(key);
        return found != m_values.cend() ? std::optional(found->template value<Value>()) : std::nullopt;
    }

    mutable std::mutex m_mutex;
    QHash<QString, QVariant> m_values;
};

} // namespace aerolith
