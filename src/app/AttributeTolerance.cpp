#include "AttributeTolerance.h"

#include <QCoreApplication>

namespace selfsame {

bool attributeToleranceShown(int typeId)
{
    return typeId == DateType || typeId == NumberType || typeId == AnyType;
}

QString attributeToleranceUnits(int typeId, const QString &attributeKey, bool metricLocale)
{
    auto tr = [](const char *text) { return QCoreApplication::translate("AttributeTolerance", text); };
    if (typeId == DateType)
        return tr("seconds");
    if (typeId != NumberType && typeId != AnyType)
        return {};
    // One arcsecond is about 30 metres of latitude.
    const QString arcsecond = metricLocale ? tr("30\u00a0m") : tr("100\u00a0ft");
    if (attributeKey == QLatin1String("kMDItemLatitude"))
        return tr("arcseconds (1″ ≈ %1)").arg(arcsecond);
    if (attributeKey == QLatin1String("kMDItemLongitude"))
        return tr("arcseconds (1″ ≈ %1 on the equator)").arg(arcsecond);
    if (attributeKey == QLatin1String("kMDItemDurationSeconds"))
        return tr("seconds");
    return {};
}

} // namespace selfsame
