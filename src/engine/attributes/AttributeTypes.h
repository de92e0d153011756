#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

namespace selfsame
{

// Type identifiers of attribute values. The numbers are those that stored settings and
// attribute records carry; 0 means any or unknown.
enum AttributeType : int {
    AnyType = 0,
    StringType = 7,
    ArrayType = 19,
    BooleanType = 21,
    NumberType = 22,
    DateType = 42,
};

// The metadata values of one file by "kMDItem…" key: QString, double, bool, QDateTime, or a
// QVariantList of those. An absent key has no value.
using MetadataValues = QHash<QString, QVariant>;

// The type identifier of a value as the reader produces it.
int attributeTypeOf(const QVariant &value);

// "Date", "Number", "String", "Boolean" or "?", as shown to the user.
QString attributeTypeName(int type);

} // namespace selfsame
