#include "AttributeTolerance.h"

#include <QCoreApplication>

namespace selfsame {

namespace {

struct AttributeToleranceText {
    Q_DECLARE_TR_FUNCTIONS(AttributeTolerance)
};

} // namespace

bool attributeToleranceShown(int typeId)
{
    return typeId == DateType || typeId == NumberType || typeId == AnyType;
}

QString attributeToleranceUnits(int typeId, const QString &attributeKey, bool metricLocale)
{
    if (typeId == DateType) return AttributeToleranceText::tr("seconds");
    if (typeId != NumberType && typeId != AnyType)
        return {};
    // One arcsecond is about 30 metres of latitude.
    const QString arcsecond = metricLocale ? AttributeToleranceText::tr("30\u00a0m")
                                           : AttributeToleranceText::tr("100\u00a0"
                                                                        "ft");
    if (attributeKey == QLatin1String("kMDItemLatitude"))
        return AttributeToleranceText::tr("arcseconds (1″ ≈ %1)").arg(arcsecond);
    if (attributeKey == QLatin1String("kMDItemLongitude"))
        return AttributeToleranceText::tr("arcseconds (1″ ≈ %1 on the equator)").arg(arcsecond);
    if (attributeKey == QLatin1String("kMDItemDurationSeconds")) return AttributeToleranceText::tr("seconds");
    return {};
}

} // namespace selfsame
