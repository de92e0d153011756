#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

namespace selfsame
{

// The user settings the engine reads and writes, by key. The application backs it with its
// settings file; the command line and tests keep the values in memory. An absent key reads
// as an invalid QVariant: registered defaults are for the caller to apply.
class SettingsStore
{
public:
    virtual ~SettingsStore() = default;
    virtual QVariant value(const QString &key) const = 0;
    virtual void setValue(const QString &key, const QVariant &value) = 0;
    virtual void remove(const QString &key) = 0;
};

class MemorySettingsStore : public SettingsStore
{
public:
    QVariant value(const QString &key) const override { return m_values.value(key); }
    void setValue(const QString &key, const QVariant &value) override { m_values.insert(key, value); }
    void remove(const QString &key) override { m_values.remove(key); }

private:
    QVariantMap m_values;
};

} // namespace selfsame
