#pragma once

#include "Settings.h"
#include "attributes/SettingsStore.h"

namespace selfsame {

// The attribute catalogue's view of the user settings: stored values only, since the
// catalogue applies its own defaults.
class CatalogueSettings : public SettingsStore {
public:
    explicit CatalogueSettings(Settings &settings) : m_settings(settings) {}

    QVariant value(const QString &key) const override
    {
        return m_settings.isStored(key) ? m_settings.value(key) : QVariant();
    }
    void setValue(const QString &key, const QVariant &value) override { m_settings.setValue(key, value); }
    void remove(const QString &key) override { m_settings.remove(key); }

private:
    Settings &m_settings;
};

} // namespace selfsame
