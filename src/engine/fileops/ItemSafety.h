#pragma once

#include "results/ResultItem.h"

#include <QString>

namespace selfsame
{

// Why an item may no longer be acted on: it is gone, or its size or modification time is not
// what the search recorded (someone changed it since). Empty when it is as recorded.
// Compared folders are checked for being folders still, since their size is a sum.
QString changedSinceSearch(const ResultItem &item);

// Whether two regular files hold the same bytes, read side by side. The search's record
// counts modification times in whole seconds, so this is what stands between a file written
// again within the same second and its loss, where it is about to be overwritten for good.
bool sameContent(const QString &a, const QString &b);

} // namespace selfsame
