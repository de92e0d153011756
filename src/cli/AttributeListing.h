#pragma once

#include "attributes/AttributeSchema.h"

#include <QByteArray>

namespace selfsame::cli
{

// One line per attribute, in key order: key, name, type and description separated by tabs.
QByteArray attributeListing(const AttributeRecords &records);

} // namespace selfsame::cli
