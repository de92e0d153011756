#pragma once

#include "attributes/AttributeSchema.h"
#include "attributes/SettingsStore.h"

#include <QStringList>
#include <memory>
#include <mutex>
#include <optional>

namespace selfsame
{

// Setting keys of the catalogue.
inline constexpr QLatin1String kCustomSpotlightAttributesKey("customSpotlightAttributes");

// The attributes the attribute mode can compare: the schema's (with a few built-in additions
// and without the full text of documents), and those the user declared by hand, which win
// over the schema's. The merged view is cached and rebuilt after every change; readers get
// a snapshot that later changes never touch.
class AttributeCatalogue
{
public:
    AttributeCatalogue(const AttributeSchema &schema, SettingsStore &settings,
                       bool declareAestheticScore = true);

    const AttributeRecords &systemAttributes() const { return m_system; }
    AttributeRecords customAttributes() const;
    std::shared_ptr<const AttributeRecords> allAttributes() const;

    QString displayName(const QString &key) const;
    QString description(const QString &key) const;
    int typeId(const QString &key) const; // 0 for an unknown key or type

    // The attributes that files with this extension can carry, from the schema alone; nullopt
    // when the extension has no MIME type. With filterEmptyName, keys without a name or a
    // description are left out.
    std::optional<AttributeRecords> attributesForFilenameExtension(const QString &extension,
                                                                   bool filterEmptyName) const;
    // Appends the keys of the type, then those of the types it derives from, depth first,
    // without repeats.
    void collectAttributesForContentType(const QString &mimeType, QStringList &keys) const;

    // Declares or replaces a custom attribute; false (nothing stored) for an empty key.
    bool addCustomAttribute(const QString &key, const AttributeRecord &record);
    // Forgets the user's custom attributes; only the default ones remain.
    void resetCustomAttributes();

    // The record of the aesthetic score, the default custom attribute.
    static AttributeRecord aestheticScoreRecord();

private:
    QVariantMap customSetting() const;

    const AttributeSchema &m_schema;
    SettingsStore &m_settings;
    bool m_declareAestheticScore;
    AttributeRecords m_system;
    mutable std::mutex m_mutex;
    mutable std::shared_ptr<const AttributeRecords> m_all; // dropped on change
};

} // namespace selfsame
