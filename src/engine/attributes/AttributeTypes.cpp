#include "attributes/AttributeTypes.h"

#include <QCoreApplication>

namespace selfsame
{

int attributeTypeOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return StringType;
    case QMetaType::Bool:
        return BooleanType;
    case QMetaType::Double:
    case QMetaType::Int:
    case QMetaType::LongLong:
        return NumberType;
    case QMetaType::QDateTime:
        return DateType;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return ArrayType;
    default:
        return AnyType;
    }
}

QString attributeTypeName(int type)
{
    auto tr = [](const char *text) { return QCoreApplication::translate("SearchPanelController", text); };
    switch (type) {
    case DateType:
        return tr("Date");
    case NumberType:
        return tr("Number");
    case StringType:
        return tr("String");
    case BooleanType:
        return tr("Boolean");
    default:
        return QStringLiteral("?");
    }
}

} // namespace selfsame
