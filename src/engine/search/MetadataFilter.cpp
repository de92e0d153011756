#include "search/MetadataFilter.h"

#include "attributes/MetadataReader.h"

#include <QDateTime>
#include <QDebug>

namespace selfsame
{

namespace
{

const QString kDuration = QStringLiteral("kMDItemDurationSeconds");
const QString kLatitude = QStringLiteral("kMDItemLatitude");
const QString kLongitude = QStringLiteral("kMDItemLongitude");

double numberOr(const MetadataValues &values, const char *key, double fallback)
{
    const QVariant value = values.value(QLatin1String(key));
    return value.isValid() ? value.toDouble() : fallback;
}

} // namespace

MetadataFilter::MetadataFilter(const SearchRequest &request, int expectedType)
    : m_request(request), m_expectedType(expectedType), m_keys{kDuration, QStringLiteral("kMDItemPixelWidth"),
                                                               QStringLiteral("kMDItemPixelHeight"),
                                                               QStringLiteral("kMDItemCodecs"),
                                                               QStringLiteral("kMDItemTotalBitRate")}
{
    if (request.detectionMode != DetectionMode::Attribute) return;
    if (request.spotlightAttribute == kLatitude || request.spotlightAttribute == kLongitude)
        m_keys << kLatitude << kLongitude;
    else
        m_keys << request.spotlightAttribute;
}

QVariant MetadataFilter::comparableValue(const MetadataValues &values, const QString &attribute,
                                         int expectedType, const QString &path)
{
    QVariant value = values.value(attribute);
    if (!value.isValid()) return {};
    if (value.typeId() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        if (list.isEmpty()) return {};
        value = list.first();
    }
    const int type = attributeTypeOf(value);
    const bool usable = (type == StringType && !value.toString().isEmpty()) || type == NumberType ||
                        type == BooleanType || type == DateType;
    if ((expectedType == AnyType || expectedType == type) && usable) return value;
    qWarning().noquote() << QStringLiteral("%1: unexpected type for attribute %2 (%3 instead of %4)")
                                .arg(path, attribute)
                                .arg(type)
                                .arg(expectedType);
    return {};
}

ItemMetadata MetadataFilter::itemMetadata(const MetadataValues &values)
{
    ItemMetadata metadata;
    metadata.duration = numberOr(values, "kMDItemDurationSeconds", 0.0);
    metadata.latitude = numberOr(values, "kMDItemLatitude", metadata.latitude);
    metadata.longitude = numberOr(values, "kMDItemLongitude", metadata.longitude);
    const QVariant width = values.value(QStringLiteral("kMDItemPixelWidth"));
    const QVariant height = values.value(QStringLiteral("kMDItemPixelHeight"));
    if (width.isValid() && height.isValid())
        metadata.pixelSize =
            QStringLiteral("%1 × %2").arg(qint64(width.toDouble())).arg(qint64(height.toDouble()));
    for (const QVariant &codec : values.value(QStringLiteral("kMDItemCodecs")).toList()) {
        const QString name = codec.toString();
        if (metadata.codecs.contains(name)) continue;
        if (!metadata.codecs.isEmpty()) metadata.codecs += QLatin1String(", ");
        metadata.codecs += name;
    }
    metadata.bitrate = numberOr(values, "kMDItemTotalBitRate", 0.0);
    return metadata;
}

std::optional<ItemMetadata> MetadataFilter::read(const QString &path)
{
    const MetadataValues values = readMetadata(path, m_keys);
    if (m_request.detectionMode == DetectionMode::Duration) {
        if (!values.contains(kDuration)) return std::nullopt;
        m_someDurationFound = true;
        return itemMetadata(values);
    }
    QVariant value = comparableValue(values, m_request.spotlightAttribute, m_expectedType, path);
    if (!value.isValid()) return std::nullopt;
    m_someSpotlightValueFound = true;
    ItemMetadata metadata = itemMetadata(values);
    metadata.spotlight = std::move(value);
    return metadata;
}

} // namespace selfsame
