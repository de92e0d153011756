#pragma once

#include "attributes/AttributeTypes.h"
#include "search/ItemMetadata.h"
#include "search/SearchRequest.h"

#include <QSet>
#include <atomic>
#include <optional>

namespace selfsame
{

// The last filter of the enumeration in the duration and attribute modes: reads an item's
// metadata and keeps the item only when it has a duration, or a usable value of the
// compared attribute. Called from every walking thread at once.
class MetadataFilter
{
public:
    // `expectedType` is the catalogue's type of the compared attribute (0: any).
    MetadataFilter(const SearchRequest &request, int expectedType);

    // The item's values when it goes on, nullopt when it is left out.
    std::optional<ItemMetadata> read(const QString &path);

    // The compared value of an attribute as read, or an invalid QVariant when it is absent
    // or unusable (then logged when of an unexpected type).
    static QVariant comparableValue(const MetadataValues &values, const QString &attribute, int expectedType,
                                    const QString &path);
    static ItemMetadata itemMetadata(const MetadataValues &values);

    bool someDurationFound() const { return m_someDurationFound.load(); }
    bool someSpotlightValueFound() const { return m_someSpotlightValueFound.load(); }

private:
    const SearchRequest &m_request;
    int m_expectedType;
    QSet<QString> m_keys;
    std::atomic<bool> m_someDurationFound{false};
    std::atomic<bool> m_someSpotlightValueFound{false};
};

} // namespace selfsame
