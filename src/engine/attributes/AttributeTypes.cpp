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

namespace {

struct AttributeTypeText {
    Q_DECLARE_TR_FUNCTIONS(SearchPanelController)
};

} // namespace

QString attributeTypeName(int type)
{
    switch (type) {
    case DateType:
        return AttributeTypeText::tr("Date");
    case NumberType:
        return AttributeTypeText::tr("Number");
    case StringType:
        return AttributeTypeText::tr("String");
    case BooleanType:
        return AttributeTypeText::tr("Boolean");
    default:
        return QStringLiteral("?");
    }
}

} // namespace selfsame
