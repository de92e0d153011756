#include "attributes/AttributeSchema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace selfsame
{

AttributeSchema AttributeSchema::fromJson(const QByteArray &json)
{
    AttributeSchema schema;
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    const QJsonObject attributes = root.value(QLatin1String("attributes")).toObject();
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        const QJsonObject record = it.value().toObject();
        schema.m_attributes.insert(it.key(), {record.value(QLatin1String("name")).toString(),
                                              record.value(QLatin1String("description")).toString(),
                                              record.value(QLatin1String("type")).toInt(AnyType)});
    }
    const QJsonObject types = root.value(QLatin1String("contentTypes")).toObject();
    for (auto it = types.begin(); it != types.end(); ++it) {
        QStringList keys;
        for (const QJsonValue &key : it.value().toArray())
            if (key.isString()) keys.append(key.toString());
        schema.m_contentTypes.insert(it.key(), keys);
    }
    const QJsonObject extensions = root.value(QLatin1String("extensions")).toObject();
    for (auto it = extensions.begin(); it != extensions.end(); ++it)
        schema.m_extensions.insert(it.key(), it.value().toString());
    return schema;
}

const AttributeSchema &AttributeSchema::shipped()
{
    static const AttributeSchema schema = [] {
        QFile file(QStringLiteral(":/selfsame/attributes/catalogue.json"));
        return file.open(QIODevice::ReadOnly) ? fromJson(file.readAll()) : AttributeSchema();
    }();
    return schema;
}

} // namespace selfsame
