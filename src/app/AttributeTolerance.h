#pragma once

#include <QString>

namespace selfsame {

// Type identifiers of metadata attribute values; 0 means any or unknown.
enum AttributeType : int { AnyType = 0, StringType = 7, BooleanType = 21, NumberType = 22, DateType = 42 };

// A tolerance only makes sense for values that can be near each other: numbers and dates,
// or values of unknown type.
bool attributeToleranceShown(int typeId);

// The unit shown after the tolerance field; empty when none applies.
QString attributeToleranceUnits(int typeId, const QString &attributeKey, bool metricLocale);

} // namespace selfsame
