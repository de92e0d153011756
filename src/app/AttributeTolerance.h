#pragma once

#include "attributes/AttributeTypes.h"

#include <QString>

namespace selfsame {

// A tolerance only makes sense for values that can be near each other: numbers and dates,
// or values of unknown type.
bool attributeToleranceShown(int typeId);

// The unit shown after the tolerance field; empty when none applies.
QString attributeToleranceUnits(int typeId, const QString &attributeKey, bool metricLocale);

} // namespace selfsame
