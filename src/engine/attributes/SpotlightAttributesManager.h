#pragma once

#include "attributes/AttributeCatalogue.h"

#include <QList>
#include <QStringList>
#include <memory>
#include <optional>

namespace selfsame
{

inline constexpr QLatin1String kActiveSpotlightAttributesKey("activeSpotlightAttributes");
inline constexpr QLatin1String kShowSpotlightAttributesKeyKey("ShowSpotlightAttributesKey");

// The registered default of "activeSpotlightAttributes".
QStringList defaultActiveSpotlightAttributes();

// The attribute catalogue as the application uses it: class-level functions over one
// process-wide catalogue, and per instance the user's short list of active attributes, the
// entries of the attribute pop-up and the steps of the chooser, free of any widget.
class SpotlightAttributesManager
{
public:
    // The store behind the catalogue's settings; set once at start, before any other use.
    // Until then an in-memory store serves.
    static void setSettingsStore(SettingsStore *store);
    static SettingsStore &settingsStore();
    static bool declareAestheticScore();
    static void setDeclareAestheticScore(bool declare); // before first use
    static AttributeCatalogue &catalogue();

    static std::shared_ptr<const AttributeRecords> GetAllSpotlightAttributes();
    static QString GetDisplayNameForSpotlightAttribute(const QString &key);
    static QString GetDescriptionForSpotlightAttribute(const QString &key);
    static int GetTypeIDForSpotlightAttribute(const QString &key);
    static std::optional<AttributeRecords>
    GetSpotlightAttributesForFilenameExtension(const QString &extension, bool filterEmptyName);
    static void CollectSpotlightAttributesForUTI(const QString &mimeType, QStringList &keys);

    struct PopupItem {
        QString title;
        QString key; // the item's represented object
    };
    // The attribute entries of the pop-up, before its fixed tail (a separator and the entry
    // that opens the chooser), and the index of the one to select (-1 when there is none).
    struct Popup {
        QList<PopupItem> items;
        qsizetype selected = -1;
    };

    void setActiveSpotlightAttributes(const QStringList &keys) { m_active = keys; }
    const QStringList &activeSpotlightAttributes() const { return m_active; }

    // Rebuilds the entries from the active list; `key` (when given) is remembered as the one
    // to select, else the last remembered one is.
    Popup updateSpotlightAttributePopup(const std::optional<QString> &key);

    // The chooser: it edits a copy of the active list, which OK makes the active list.
    void beginChoosing() { m_edited = m_active; }
    QStringList &editedActiveSpotlightAttributes() { return m_edited; }
    // Adds a custom attribute; false (the caller beeps) for an empty key.
    bool addAttribute(const QString &key, const AttributeRecord &record);
    // Drops every custom attribute, also from the edited list; the default ones come back.
    void addAttributeReset();
    // Ends the chooser with OK: a single selected key goes to the front of the list and is
    // the result; the edited list becomes the active list and is saved.
    std::optional<QString> spotlightAttributesOK(const QStringList &selectedKeys);

private:
    QStringList m_active;
    QStringList m_edited;
    std::optional<QString> m_spotlightPopupLastRepresentedObject;
};

} // namespace selfsame
