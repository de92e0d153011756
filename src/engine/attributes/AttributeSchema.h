#pragma once

#include "attributes/AttributeTypes.h"

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

namespace selfsame
{

// What the catalogue tells about one attribute.
struct AttributeRecord {
    QString name;        // display name, "" when unknown
    QString description; // one line, "" when unknown
    int type = AnyType;  // type identifier of the values (of each element for lists)

    bool operator==(const AttributeRecord &) const = default;
};

// Records by attribute key, in key order.
using AttributeRecords = QMap<QString, AttributeRecord>;

// The attribute schema shipped with Selfsame: every key the metadata reader produces, with
// its name, description and type, which keys each MIME type carries ("image/*" and the like
// stand for every type of that kind), and MIME types for extensions the MIME database lacks.
class AttributeSchema
{
public:
    // A schema from its JSON text; malformed parts are left out.
    static AttributeSchema fromJson(const QByteArray &json);
    // The schema compiled into the engine.
    static const AttributeSchema &shipped();

    const AttributeRecords &attributes() const { return m_attributes; }
    // The keys the schema lists for exactly this type (no ancestors).
    QStringList keysForContentType(const QString &mimeType) const { return m_contentTypes.value(mimeType); }
    // The schema's own MIME type for an extension, or "" to ask the MIME database.
    QString contentTypeForExtension(const QString &extension) const { return m_extensions.value(extension); }

private:
    AttributeRecords m_attributes;
    QHash<QString, QStringList> m_contentTypes;
    QHash<QString, QString> m_extensions;
};

} // namespace selfsame
