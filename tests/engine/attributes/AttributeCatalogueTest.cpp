#include "attributes/AttributeCatalogue.h"

#include "attributes/SpotlightAttributesManager.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

const AttributeSchema &testSchema()
{
    static const AttributeSchema schema = AttributeSchema::fromJson(R"({
        "attributes": {
            "kMDItemTitle": {"name": "Title", "description": "Title of the item", "type": 7},
            "kMDItemDownloadedDate": {"name": "Fetched", "description": "Schema's own", "type": 42},
            "kMDItemTextContent": {"name": "Text", "description": "Whole text", "type": 7},
            "kMDItemPixelWidth": {"name": "Width", "description": "Pixels across", "type": 22},
            "kMDItemFSName": {"name": "File name", "description": "Name on disk", "type": 7},
            "kMDItemRaw": {"name": "Raw", "description": "", "type": 22}
        },
        "contentTypes": {
            "image/x-canon-cr2": ["kMDItemRaw"],
            "image/tiff": ["kMDItemPixelWidth", "kMDItemRaw"],
            "image/*": ["kMDItemPixelWidth", "kMDItemTitle"],
            "application/octet-stream": ["kMDItemFSName"]
        },
        "extensions": {"emlx": "message/rfc822"}
    })");
    return schema;
}

TEST(AttributeCatalogue, SystemAttributesKeepTheSchemaOverAdditionsAndDropTextContent)
{
    MemorySettingsStore settings;
    const AttributeCatalogue catalogue(testSchema(), settings);
    const AttributeRecords &system = catalogue.systemAttributes();
    EXPECT_FALSE(system.contains("kMDItemTextContent"));
    EXPECT_EQ(system["kMDItemDownloadedDate"].name, "Fetched");
    EXPECT_EQ(system["kMDItemStartDate"],
              (AttributeRecord{"Start date", "Start date of the item", DateType}));
    EXPECT_EQ(system["kMDItemTextContentLength"].type, NumberType);
    EXPECT_EQ(catalogue.typeId("kMDItemNoSuchKey"), AnyType);
    EXPECT_EQ(catalogue.displayName("kMDItemNoSuchKey"), "");
    EXPECT_EQ(catalogue.description("kMDItemTitle"), "Title of the item");
}

TEST(AttributeCatalogue, CustomAttributesOverrideUntilResetAndTheAestheticScoreIsTheDefault)
{
    MemorySettingsStore settings;
    AttributeCatalogue catalogue(testSchema(), settings);
    EXPECT_EQ(catalogue.customAttributes().keys(), QList<QString>{"kMDItemAestheticScore"});
    EXPECT_EQ(catalogue.typeId("kMDItemAestheticScore"), NumberType);

    const auto before = catalogue.allAttributes();
    EXPECT_FALSE(catalogue.addCustomAttribute("", {"Nothing", "", StringType}));
    ASSERT_TRUE(catalogue.addCustomAttribute("kMDItemTitle", {"Heading", "Mine", NumberType}));
    EXPECT_EQ(catalogue.displayName("kMDItemTitle"), "Heading");
    EXPECT_EQ(catalogue.typeId("kMDItemTitle"), NumberType);
    EXPECT_EQ((*before)["kMDItemTitle"].name, "Title"); // an earlier snapshot is never edited
    EXPECT_TRUE(settings.value(kCustomSpotlightAttributesKey).toMap().contains("kMDItemAestheticScore"));

    catalogue.resetCustomAttributes();
    EXPECT_EQ(catalogue.displayName("kMDItemTitle"), "Title");
    EXPECT_EQ(catalogue.customAttributes().keys(), QList<QString>{"kMDItemAestheticScore"});

    const AttributeCatalogue undeclared(testSchema(), settings, false);
    EXPECT_TRUE(undeclared.customAttributes().isEmpty());
    EXPECT_EQ(undeclared.typeId("kMDItemAestheticScore"), AnyType);
}

TEST(AttributeCatalogue, ExtensionListsFollowTheTypeItsKindAndItsParents)
{
    MemorySettingsStore settings;
    const AttributeCatalogue catalogue(testSchema(), settings);
    QStringList keys;
    catalogue.collectAttributesForContentType("image/x-canon-cr2", keys);
    EXPECT_EQ(keys, (QStringList{"kMDItemRaw", "kMDItemPixelWidth", "kMDItemTitle", "kMDItemFSName"}));

    const auto raw = catalogue.attributesForFilenameExtension("cr2", true);
    ASSERT_TRUE(raw);
    EXPECT_EQ(raw->keys(), (QList<QString>{"kMDItemFSName", "kMDItemPixelWidth", "kMDItemTitle"}));
    EXPECT_EQ(catalogue.attributesForFilenameExtension("cr2", false)->value("kMDItemRaw").description, "");

    const auto mail = catalogue.attributesForFilenameExtension("emlx", false);
    ASSERT_TRUE(mail);
    EXPECT_TRUE(mail->contains("com_apple_mail_flagged"));
    EXPECT_TRUE(mail->contains("kMDItemEmailConversationID"));
    EXPECT_FALSE(catalogue.attributesForFilenameExtension("emlx", true)->contains("com_apple_mail_flagged"));
    EXPECT_FALSE(catalogue.attributesForFilenameExtension("eml", false)->contains("com_apple_mail_flagged"));

    EXPECT_FALSE(catalogue.attributesForFilenameExtension("", false));
    EXPECT_FALSE(catalogue.attributesForFilenameExtension("nosuchextension", false));
    // Additions and custom attributes belong to no type.
    EXPECT_FALSE(catalogue.attributesForFilenameExtension("jpg", false)->contains("kMDItemAestheticScore"));
}

TEST(SpotlightAttributesManager, ShippedCatalogueAnswersTheClassFunctions)
{
    EXPECT_EQ(SpotlightAttributesManager::GetTypeIDForSpotlightAttribute("kMDItemDurationSeconds"),
              NumberType);
    EXPECT_EQ(SpotlightAttributesManager::GetTypeIDForSpotlightAttribute("kMDItemContentCreationDate"),
              DateType);
    EXPECT_EQ(SpotlightAttributesManager::GetDisplayNameForSpotlightAttribute("kMDItemLatitude"), "Latitude");
    EXPECT_FALSE(SpotlightAttributesManager::GetDescriptionForSpotlightAttribute("kMDItemTitle").isEmpty());
    const auto all = SpotlightAttributesManager::GetAllSpotlightAttributes();
    for (const QString &key : defaultActiveSpotlightAttributes())
        EXPECT_TRUE(all->contains(key)) << key.toStdString();

    const auto jpeg = SpotlightAttributesManager::GetSpotlightAttributesForFilenameExtension("jpg", true);
    ASSERT_TRUE(jpeg);
    EXPECT_TRUE(jpeg->contains("kMDItemLatitude") && jpeg->contains("kMDItemFSSize"));
    EXPECT_FALSE(jpeg->contains("kMDItemDurationSeconds"));
    const auto song = SpotlightAttributesManager::GetSpotlightAttributesForFilenameExtension("ogg", true);
    ASSERT_TRUE(song);
    EXPECT_TRUE(song->contains("kMDItemDurationSeconds") && song->contains("kMDItemAlbum"));
}

TEST(SpotlightAttributesManager, PopupListsNamedActiveKeysAndFallsBackToTheFirst)
{
    MemorySettingsStore settings;
    SpotlightAttributesManager::setSettingsStore(&settings);
    SpotlightAttributesManager manager;
    manager.setActiveSpotlightAttributes({"kMDItemTitle", "kMDItemUnnamed", "kMDItemAlbum"});

    auto popup = manager.updateSpotlightAttributePopup(QStringLiteral("kMDItemAlbum"));
    ASSERT_EQ(popup.items.size(), 2);
    EXPECT_EQ(popup.items[1].key, "kMDItemAlbum");
    EXPECT_EQ(popup.items[1].title, "Album");
    EXPECT_EQ(popup.selected, 1);

    settings.setValue(kShowSpotlightAttributesKeyKey, true);
    popup = manager.updateSpotlightAttributePopup(std::nullopt); // keeps the remembered key
    ASSERT_EQ(popup.items.size(), 3);
    EXPECT_EQ(popup.items[1].title, "kMDItemUnnamed");
    EXPECT_EQ(popup.selected, 2);

    EXPECT_EQ(manager.updateSpotlightAttributePopup(QStringLiteral("kMDItemGone")).selected, 0);
    SpotlightAttributesManager::setSettingsStore(nullptr);
}

TEST(SpotlightAttributesManager, ChooserAddsResetsAndSavesTheActiveList)
{
    MemorySettingsStore settings;
    SpotlightAttributesManager::setSettingsStore(&settings);
    SpotlightAttributesManager manager;
    manager.setActiveSpotlightAttributes({"kMDItemTitle", "kMDItemAestheticScore"});
    manager.beginChoosing();
    ASSERT_TRUE(manager.addAttribute("kMDItemMine", {"Mine", "My own", NumberType}));
    EXPECT_EQ(SpotlightAttributesManager::GetTypeIDForSpotlightAttribute("kMDItemMine"), NumberType);
    manager.editedActiveSpotlightAttributes().append("kMDItemMine");

    manager.addAttributeReset();
    EXPECT_EQ(manager.editedActiveSpotlightAttributes(), QStringList{"kMDItemTitle"});
    EXPECT_EQ(SpotlightAttributesManager::catalogue().customAttributes().keys(),
              QList<QString>{"kMDItemAestheticScore"});
    EXPECT_EQ(SpotlightAttributesManager::GetDisplayNameForSpotlightAttribute("kMDItemMine"), "");

    EXPECT_EQ(manager.spotlightAttributesOK({"kMDItemAlbum"}), QStringLiteral("kMDItemAlbum"));
    EXPECT_EQ(manager.activeSpotlightAttributes(), (QStringList{"kMDItemAlbum", "kMDItemTitle"}));
    EXPECT_EQ(settings.value(kActiveSpotlightAttributesKey).toStringList(),
              manager.activeSpotlightAttributes());

    manager.beginChoosing();
    EXPECT_EQ(manager.spotlightAttributesOK({"kMDItemAlbum", "kMDItemTitle"}), std::nullopt);
    SpotlightAttributesManager::setSettingsStore(nullptr);
}

} // namespace
