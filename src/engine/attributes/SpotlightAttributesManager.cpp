#include "attributes/SpotlightAttributesManager.h"

#include <mutex>

namespace selfsame
{

namespace
{

struct ProcessCatalogue {
    std::mutex mutex; // the catalogue is made once, on whichever thread asks first
    MemorySettingsStore memory;
    SettingsStore *store = &memory;
    bool declareAestheticScore = true;
    std::unique_ptr<AttributeCatalogue> catalogue;
};

ProcessCatalogue &process()
{
    static ProcessCatalogue instance;
    return instance;
}

} // namespace

QStringList defaultActiveSpotlightAttributes()
{
    return {"kMDItemContentCreationDate",
            "kMDItemRecordingDate",
            "kMDItemFSCreationDate",
            "kMDItemDurationSeconds",
            "kMDItemAlbum",
            "kMDItemTitle",
            "kMDItemDisplayName",
            "kMDItemDescription",
            "kMDItemHeadline",
            "kMDItemLatitude",
            "kMDItemLongitude",
            "kMDItemIdentifier",
            "kMDItemOriginalSource",
            "kMDItemWhereFroms",
            "kMDItemAestheticScore"};
}

void SpotlightAttributesManager::setSettingsStore(SettingsStore *store)
{
    std::lock_guard lock(process().mutex);
    process().store = store ? store : &process().memory;
    process().catalogue.reset();
}

SettingsStore &SpotlightAttributesManager::settingsStore()
{
    return *process().store;
}

bool SpotlightAttributesManager::declareAestheticScore()
{
    return process().declareAestheticScore;
}

void SpotlightAttributesManager::setDeclareAestheticScore(bool declare)
{
    std::lock_guard lock(process().mutex);
    process().declareAestheticScore = declare;
    process().catalogue.reset();
}

AttributeCatalogue &SpotlightAttributesManager::catalogue()
{
    ProcessCatalogue &p = process();
    std::lock_guard lock(p.mutex);
    if (!p.catalogue)
        p.catalogue = std::make_unique<AttributeCatalogue>(AttributeSchema::shipped(), *p.store,
                                                           p.declareAestheticScore);
    return *p.catalogue;
}

std::shared_ptr<const AttributeRecords> SpotlightAttributesManager::GetAllSpotlightAttributes()
{
    return catalogue().allAttributes();
}

QString SpotlightAttributesManager::GetDisplayNameForSpotlightAttribute(const QString &key)
{
    return catalogue().displayName(key);
}

QString SpotlightAttributesManager::GetDescriptionForSpotlightAttribute(const QString &key)
{
    return catalogue().description(key);
}

int SpotlightAttributesManager::GetTypeIDForSpotlightAttribute(const QString &key)
{
    return catalogue().typeId(key);
}

std::optional<AttributeRecords>
SpotlightAttributesManager::GetSpotlightAttributesForFilenameExtension(const QString &extension,
                                                                       bool filterEmptyName)
{
    return catalogue().attributesForFilenameExtension(extension, filterEmptyName);
}

void SpotlightAttributesManager::CollectSpotlightAttributesForUTI(const QString &mimeType, QStringList &keys)
{
    catalogue().collectAttributesForContentType(mimeType, keys);
}

SpotlightAttributesManager::Popup
SpotlightAttributesManager::updateSpotlightAttributePopup(const std::optional<QString> &key)
{
    if (key) m_spotlightPopupLastRepresentedObject = key;
    const bool showKeys = settingsStore().value(kShowSpotlightAttributesKeyKey).toBool();
    Popup popup;
    for (const QString &active : m_active) {
        QString title = GetDisplayNameForSpotlightAttribute(active);
        if (title.isEmpty() && showKeys) title = active;
        if (title.isEmpty()) continue;
        if (active == m_spotlightPopupLastRepresentedObject && popup.selected < 0)
            popup.selected = popup.items.size();
        popup.items.append({title, active});
    }
    if (popup.selected < 0 && !popup.items.isEmpty()) popup.selected = 0;
    return popup;
}

bool SpotlightAttributesManager::addAttribute(const QString &key, const AttributeRecord &record)
{
    return catalogue().addCustomAttribute(key, record);
}

void SpotlightAttributesManager::addAttributeReset()
{
    const AttributeRecords custom = catalogue().customAttributes();
    m_edited.removeIf([&](const QString &key) { return custom.contains(key); });
    catalogue().resetCustomAttributes();
}

std::optional<QString> SpotlightAttributesManager::spotlightAttributesOK(const QStringList &selectedKeys)
{
    std::optional<QString> result;
    if (selectedKeys.size() == 1) {
        result = selectedKeys.first();
        if (!m_edited.contains(*result)) m_edited.prepend(*result);
    }
    m_active = m_edited;
    settingsStore().setValue(kActiveSpotlightAttributesKey, m_active);
    return result;
}

} // namespace selfsame
