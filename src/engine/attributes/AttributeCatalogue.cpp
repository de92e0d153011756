#include "attributes/AttributeCatalogue.h"

#include <QCoreApplication>
#include <QMimeDatabase>

namespace selfsame
{

namespace
{

struct AdditionText {
    Q_DECLARE_TR_FUNCTIONS(MDImporterAdditions)
};

const char *const kMailKeys[] = {"com_apple_mail_attachmentNames",
                                 "com_apple_mail_attachmentTypes",
                                 "com_apple_mail_attachmentSpecificTypes",
                                 "com_apple_mail_attachmentKinds",
                                 "com_apple_mail_dateReceived",
                                 "com_apple_mail_dateLastViewed",
                                 "com_apple_mail_read",
                                 "com_apple_mail_flagColor",
                                 "com_apple_mail_flagged",
                                 "com_apple_mail_repliedTo",
                                 "com_apple_mail_priority",
                                 "com_apple_mail_messageID",
                                 "kMDItemEmailConversationID"};

QVariantMap recordToVariant(const AttributeRecord &record)
{
    return {{QStringLiteral("name"), record.name},
            {QStringLiteral("description"), record.description},
            {QStringLiteral("type"), record.type}};
}

AttributeRecord recordFromVariant(const QVariant &value)
{
    const QVariantMap map = value.toMap();
    return {map.value(QStringLiteral("name")).toString(), map.value(QStringLiteral("description")).toString(),
            map.value(QStringLiteral("type")).toInt()};
}

// The shipped schema is English; its texts are listed for the translators in CatalogueTexts.cpp.
QString translatedSchemaText(const QString &text)
{
    return text.isEmpty() ? text
                          : QCoreApplication::translate("AttributeCatalogue", text.toUtf8().constData());
}

AttributeRecord translatedSchemaRecord(AttributeRecord record)
{
    record.name = translatedSchemaText(record.name);
    record.description = translatedSchemaText(record.description);
    return record;
}

AttributeRecords translatedSchemaRecords(const AttributeRecords &records)
{
    AttributeRecords translated;
    for (auto it = records.begin(); it != records.end(); ++it)
        translated.insert(it.key(), translatedSchemaRecord(it.value()));
    return translated;
}

} // namespace

AttributeCatalogue::AttributeCatalogue(const AttributeSchema &schema, SettingsStore &settings,
                                       bool declareAestheticScore)
    : m_schema(schema), m_settings(settings), m_declareAestheticScore(declareAestheticScore),
      m_system(translatedSchemaRecords(schema.attributes()))
{
    const std::pair<const char *, AttributeRecord> additions[] = {
        {"kMDItemDownloadedDate",
         {AdditionText::tr("Downloaded date"), AdditionText::tr("Date when the item was downloaded"),
          DateType}},
        {"kMDItemStartDate",
         {AdditionText::tr("Start date"), AdditionText::tr("Start date of the item"), DateType}},
        {"kMDItemEndDate",
         {AdditionText::tr("End date"), AdditionText::tr("End date of the item"), DateType}},
        {"kMDItemTextContentLength",
         {AdditionText::tr("Text content length"), AdditionText::tr("Length of text content of this item"),
          NumberType}}};
    for (const auto &[key, record] : additions)
        if (!m_system.contains(QLatin1String(key))) m_system.insert(QLatin1String(key), record);
    // A document's whole text is no value to compare.
    m_system.remove(QStringLiteral("kMDItemTextContent"));
}

AttributeRecord AttributeCatalogue::aestheticScoreRecord()
{
    return {QStringLiteral("Aesthetic score"),
            QCoreApplication::translate("SearchPanelController", "macOS generated aesthetic score"),
            NumberType};
}

QVariantMap AttributeCatalogue::customSetting() const
{
    const QVariant stored = m_settings.value(kCustomSpotlightAttributesKey);
    if (stored.isValid()) return stored.toMap();
    QVariantMap registeredDefault;
    if (m_declareAestheticScore)
        registeredDefault.insert(QStringLiteral("kMDItemAestheticScore"),
                                 recordToVariant(aestheticScoreRecord()));
    return registeredDefault;
}

AttributeRecords AttributeCatalogue::customAttributes() const
{
    AttributeRecords custom;
    const QVariantMap setting = customSetting();
    for (auto it = setting.begin(); it != setting.end(); ++it)
        custom.insert(it.key(), recordFromVariant(it.value()));
    return custom;
}

std::shared_ptr<const AttributeRecords> AttributeCatalogue::allAttributes() const
{
    std::lock_guard lock(m_mutex);
    if (!m_all) {
        auto all = std::make_shared<AttributeRecords>(m_system);
        const AttributeRecords custom = customAttributes();
        for (auto it = custom.begin(); it != custom.end(); ++it)
            all->insert(it.key(), it.value());
        m_all = std::move(all);
    }
    return m_all;
}

QString AttributeCatalogue::displayName(const QString &key) const
{
    return allAttributes()->value(key).name;
}

QString AttributeCatalogue::description(const QString &key) const
{
    return allAttributes()->value(key).description;
}

int AttributeCatalogue::typeId(const QString &key) const
{
    return allAttributes()->value(key).type;
}

void AttributeCatalogue::collectAttributesForContentType(const QString &mimeType, QStringList &keys) const
{
    for (const QString &key : m_schema.keysForContentType(mimeType))
        if (!keys.contains(key)) keys.append(key);
    if (mimeType.endsWith(QLatin1String("/*"))) return;
    // A type conforms to every type of its kind ("image/*"), then to its MIME parents.
    const QString kind = mimeType.left(mimeType.indexOf(u'/')) + QLatin1String("/*");
    collectAttributesForContentType(kind, keys);
    const QMimeType type = QMimeDatabase().mimeTypeForName(mimeType);
    for (const QString &parent : type.parentMimeTypes())
        collectAttributesForContentType(parent, keys);
}

std::optional<AttributeRecords> AttributeCatalogue::attributesForFilenameExtension(const QString &extension,
                                                                                   bool filterEmptyName) const
{
    if (extension.isEmpty()) return std::nullopt;
    QString mimeType = m_schema.contentTypeForExtension(extension);
    if (mimeType.isEmpty()) {
        const QMimeType type = QMimeDatabase().mimeTypeForFile(QLatin1String("file.") + extension,
                                                               QMimeDatabase::MatchExtension);
        if (!type.isValid() || type.isDefault()) return std::nullopt;
        mimeType = type.name();
    }
    QStringList keys;
    collectAttributesForContentType(mimeType, keys);
    if (extension == QLatin1String("emlx"))
        for (const char *key : kMailKeys)
            if (!keys.contains(QLatin1String(key))) keys.append(QLatin1String(key));
    AttributeRecords records;
    for (const QString &key : keys) {
        const auto found = m_schema.attributes().find(key);
        const AttributeRecord record = found != m_schema.attributes().end() ? *found : AttributeRecord();
        if (filterEmptyName && (record.name.isEmpty() || record.description.isEmpty())) continue;
        records.insert(key, translatedSchemaRecord(record));
    }
    return records;
}

bool AttributeCatalogue::addCustomAttribute(const QString &key, const AttributeRecord &record)
{
    if (key.isEmpty()) return false;
    QVariantMap setting = customSetting();
    setting.insert(key, recordToVariant(record));
    m_settings.setValue(kCustomSpotlightAttributesKey, setting);
    std::lock_guard lock(m_mutex);
    m_all.reset();
    return true;
}

void AttributeCatalogue::resetCustomAttributes()
{
    m_settings.remove(kCustomSpotlightAttributesKey);
    std::lock_guard lock(m_mutex);
    m_all.reset();
}

} // namespace selfsame
