#pragma once

#include <QString>

namespace selfsame {

// Type identifiers of metadata attribute values, as stored records carry them; 0 means any
// or unknown.
namespace attribute {
inline constexpr int kAnyType = 0;
inline constexpr int kStringType = 7;
inline constexpr int kBooleanType = 21;
inline constexpr int kNumberType = 22;
inline constexpr int kDateType = 42;
} // namespace attribute

// A tolerance only makes sense for values that can be near each other: numbers and dates,
// or values of unknown type.
bool attributeToleranceShown(int typeId);

// The unit shown after the tolerance field; empty when none applies.
QString attributeToleranceUnits(int typeId, const QString &attributeKey, bool metricLocale);

} // namespace selfsame
